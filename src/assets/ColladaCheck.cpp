#include "assets/ColladaCheck.h"

#include <boost/property_tree/xml_parser.hpp>

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

namespace {

using Element = boost::property_tree::ptree;

constexpr std::size_t kMostDigits = 9; // of a number in an attribute; none that makes sense has more

std::string attribute(const Element& element, const std::string& name)
{
    return element.get("<xmlattr>." + name, std::string());
}

unsigned long long number(const Element& element, const std::string& name, unsigned long long fallback)
{
    const std::string text = attribute(element, name);
    if (text.empty()) return fallback;
    if (text.size() > kMostDigits || text.find_first_not_of("0123456789") != std::string::npos)
        throw std::runtime_error("\"" + name + "\" is not a number");
    return std::stoull(text);
}

/// Call visit(name, element) for every element, parents first.
template <class Visit>
void forEachElement(const Element& parent, const Visit& visit)
{
    for (const auto& [name, element] : parent) {
        visit(name, element);
        forEachElement(element, visit);
    }
}

std::map<std::string, unsigned long long> arrayLengths(const Element& document)
{
    std::map<std::string, unsigned long long> lengths;
    forEachElement(document, [&](const std::string& name, const Element& element) {
        if (name == "float_array") lengths[attribute(element, "id")] = number(element, "count", 0);
    });
    return lengths;
}

void checkAccessor(const Element& accessor, const std::map<std::string, unsigned long long>& lengths)
{
    const std::string source = attribute(accessor, "source");
    const auto array = lengths.find(source.substr(std::min<std::size_t>(source.size(), 1))); // without its "#"
    if (array == lengths.end()) return; // the importer's own check finds a missing array
    const unsigned long long stride = number(accessor, "stride", 1);
    if (number(accessor, "offset", 0) + number(accessor, "count", 0) * stride > array->second ||
        accessor.count("param") > stride)
        throw std::runtime_error("an accessor reaches past its array");
}

void check(const Element& document)
{
    const auto lengths = arrayLengths(document);
    forEachElement(document, [&](const std::string& name, const Element& element) {
        if (name == "accessor") checkAccessor(element, lengths);
        if (name == "p" && element.data().find_first_not_of("0123456789+- \t\r\n") != std::string::npos)
            throw std::runtime_error("an index list holds something other than numbers");
    });
}

} // namespace

std::string colladaFault(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::stringstream text;
    text << file.rdbuf(); // nothing from a folder
    if (text.str().find("<COLLADA") == std::string::npos) return "";
    try {
        Element document;
        boost::property_tree::read_xml(text, document);
        check(document);
    } catch (const boost::property_tree::xml_parser_error&) {
        return "malformed XML";
    } catch (const std::runtime_error& fault) {
        return fault.what();
    }
    return "";
}
