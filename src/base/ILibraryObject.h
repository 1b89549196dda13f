#pragma once

/// Whatever the asset library stores under a name. Its one virtual operation does nothing but give each entry a type at
/// run time, by which the library lists entries. They live until the process ends, so there is no virtual destructor.
class ILibraryObject {
public:
    virtual void isLibraryObject() const {}

protected:
    ~ILibraryObject() = default;
};
