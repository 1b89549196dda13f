#pragma once

/// Whatever the asset library stores under a name. Its one virtual operation does nothing: it gives each entry a
/// run-time type, which the library's typed listing tests. Entries live until the process ends, so there is no virtual
/// destructor.
class ILibraryObject {
public:
    virtual void isLibraryObject() const {}

protected:
    ~ILibraryObject() = default;
};
