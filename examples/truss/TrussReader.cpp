#include "TrussReader.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <fstream>
#include <locale>
#include <map>
#include <sstream>
#include <unordered_map>

namespace truss
{
namespace
{

using Fields = std::vector<std::string>;

Fields SplitLine(const std::string& iLine)
{
    std::istringstream line(iLine.substr(0, iLine.find('#')));
    Fields fields;
    for (std::string field; line >> field;)
        fields.push_back(field);
    return fields;
}

bool IsNameCharacter(char iCharacter)
{
    return iCharacter > ' ' && iCharacter <= '~' &&
           std::string("&<>\"").find(iCharacter) == std::string::npos;
}

bool IsControlCharacter(char iCharacter)
{
    return static_cast<unsigned char>(iCharacter) < ' ' || iCharacter == '\x7f';
}

class Reader
{
public:
    explicit Reader(const std::string& iPath) { _Model.path = iPath; }

    Model Read();

private:
    using Names = std::unordered_map<std::string, std::size_t>;

    /// A kind of line: its fields for the error message, how many there may be, and its reader.
    struct Keyword {
        const char* form;
        std::size_t fewestFields;
        std::size_t mostFields;
        void (Reader::*read)(const Fields&);
    };
    static const std::map<std::string, Keyword> Keywords;

    void ReadLine(const Fields& iFields);
    void ReadTitle(const Fields& iFields);
    void ReadUnits(const Fields& iFields);
    void ReadMaterial(const Fields& iFields);
    void ReadNode(const Fields& iFields);
    void ReadBar(const Fields& iFields);
    void ReadSupport(const Fields& iFields);
    void ReadCase(const Fields& iFields);
    void ReadLoad(const Fields& iFields);
    void CheckCompleteness() const;
    void CheckLastCase() const;

    std::string Name(const std::string& iText) const;
    double Number(const std::string& iText) const;
    double Positive(const std::string& iText, const char* iWhat) const;
    Vector Triple(const Fields& iFields) const;
    std::string NewName(Names& ioNames, const char* iKind, const std::string& iText) const;
    std::size_t Find(const Names& iNames, const char* iKind, const std::string& iText) const;
    void Require(bool iCondition, const std::string& iComplaint) const;

    Model _Model;
    std::size_t _Line = 1;
    Names _MaterialNames;
    Names _NodeNames;
    Names _BarNames;
    Names _CaseNames;
};

const std::map<std::string, Reader::Keyword> Reader::Keywords = {
    {"title", {"TEXT", 1, std::string::npos, &Reader::ReadTitle}},
    {"units", {"LENGTH FORCE MASS", 3, 3, &Reader::ReadUnits}},
    {"material", {"NAME MODULUS [DENSITY]", 2, 3, &Reader::ReadMaterial}},
    {"node", {"NAME X Y Z", 4, 4, &Reader::ReadNode}},
    {"bar", {"NAME NODE NODE MATERIAL AREA", 5, 5, &Reader::ReadBar}},
    {"support", {"NODE DIRECTIONS", 2, 2, &Reader::ReadSupport}},
    {"case", {"NAME", 1, 1, &Reader::ReadCase}},
    {"load", {"NODE FX FY FZ", 4, 4, &Reader::ReadLoad}},
};

Model Reader::Read()
{
    std::ifstream file(_Model.path);
    for (std::string line; std::getline(file, line); ++_Line)
        ReadLine(SplitLine(line));
    if (file.bad() || !file.eof())
        throw InputError(_Model.path + ": cannot be read");
    CheckCompleteness();
    return std::move(_Model);
}

void Reader::ReadLine(const Fields& iFields)
{
    if (iFields.empty())
        return;
    const auto found = Keywords.find(iFields.front());
    Require(found != Keywords.end(), "unknown keyword \"" + iFields.front() + "\"");
    const Keyword& keyword = found->second;
    const Fields fields(iFields.begin() + 1, iFields.end());
    Require(fields.size() >= keyword.fewestFields && fields.size() <= keyword.mostFields,
            "expected: " + found->first + " " + keyword.form);
    (this->*keyword.read)(fields);
}

void Reader::ReadTitle(const Fields& iFields)
{
    Require(_Model.title.empty(), "there is a title already");
    for (const std::string& word : iFields) {
        Require(std::none_of(word.begin(), word.end(), IsControlCharacter),
                "the title holds a control character");
        _Model.title += (_Model.title.empty() ? "" : " ") + word;
    }
}

void Reader::ReadUnits(const Fields& iFields)
{
    Require(_Model.lengthUnit.empty(), "there are units already");
    _Model.lengthUnit = Name(iFields[0]);
    _Model.forceUnit = Name(iFields[1]);
    _Model.massUnit = Name(iFields[2]);
}

void Reader::ReadMaterial(const Fields& iFields)
{
    Material material;
    material.name = NewName(_MaterialNames, "material", iFields[0]);
    material.modulus = Positive(iFields[1], "the modulus");
    if (iFields.size() > 2)
        material.density = Positive(iFields[2], "the density");
    _Model.materials.push_back(material);
}

void Reader::ReadNode(const Fields& iFields)
{
    const std::string name = NewName(_NodeNames, "node", iFields[0]);
    _Model.nodes.push_back({name, Triple(iFields)});
}

void Reader::ReadBar(const Fields& iFields)
{
    const Bar bar = {NewName(_BarNames, "bar", iFields[0]), Find(_NodeNames, "node", iFields[1]),
                     Find(_NodeNames, "node", iFields[2]),
                     Find(_MaterialNames, "material", iFields[3]),
                     Positive(iFields[4], "the area")};
    Require(_Model.Length(bar) > 0, "bar " + bar.name + " has no length");
    Require(std::isnormal(_Model.Stiffness(bar)),
            "bar " + bar.name + ": modulus times area by length is out of range");
    _Model.bars.push_back(bar);
}

void Reader::ReadSupport(const Fields& iFields)
{
    Node& node = _Model.nodes[Find(_NodeNames, "node", iFields[0])];
    Require(!node.fixed.any(), "node " + node.name + " has a support already");
    for (const char direction : iFields[1]) {
        const char* const axis = direction ? std::strchr(AxisNames, direction) : nullptr;
        Require(axis && !node.fixed[axis - AxisNames],
                "the directions of a support are some of x, y and z, as in \"xz\"");
        node.fixed[axis - AxisNames] = true;
    }
}

void Reader::ReadCase(const Fields& iFields)
{
    CheckLastCase();
    _Model.cases.push_back({NewName(_CaseNames, "load case", iFields[0]), {}});
}

void Reader::ReadLoad(const Fields& iFields)
{
    Require(!_Model.cases.empty(), "a load must follow the case that it belongs to");
    _Model.cases.back().loads.push_back({Find(_NodeNames, "node", iFields[0]), Triple(iFields)});
}

void Reader::CheckCompleteness() const
{
    Require(!_Model.title.empty(), "the model has no title");
    Require(!_Model.lengthUnit.empty(), "the model has no units");
    Require(!_Model.nodes.empty(), "the model has no nodes");
    Require(!_Model.bars.empty(), "the model has no bars");
    Require(!_Model.cases.empty(), "the model has no load case");
    CheckLastCase();
}

void Reader::CheckLastCase() const
{
    Require(_Model.cases.empty() || !_Model.cases.back().loads.empty(),
            "load case " + (_Model.cases.empty() ? "" : _Model.cases.back().name) +
                " has no loads");
}

std::string Reader::Name(const std::string& iText) const
{
    Require(std::all_of(iText.begin(), iText.end(), IsNameCharacter),
            "a name is made of ASCII characters other than & < > and \"");
    return iText;
}

double Reader::Number(const std::string& iText) const
{
    std::istringstream text(iText);
    text.imbue(std::locale::classic());
    double number = 0;
    const bool isRead = text >> number && text.peek() == std::istringstream::traits_type::eof();
    Require(isRead && std::abs(number) <= LargestNumber,
            "\"" + iText + "\" is not a number or out of range");
    return number;
}

double Reader::Positive(const std::string& iText, const char* iWhat) const
{
    const double number = Number(iText);
    Require(number > 0, std::string(iWhat) + " must be positive");
    return number;
}

/// The three numbers behind a name.
Vector Reader::Triple(const Fields& iFields) const
{
    return {Number(iFields[1]), Number(iFields[2]), Number(iFields[3])};
}

std::string Reader::NewName(Names& ioNames, const char* iKind, const std::string& iText) const
{
    const bool isNew = ioNames.emplace(Name(iText), ioNames.size()).second;
    Require(isNew, std::string(iKind) + " " + iText + " is defined twice");
    return iText;
}

std::size_t Reader::Find(const Names& iNames, const char* iKind, const std::string& iText) const
{
    const auto found = iNames.find(iText);
    Require(found != iNames.end(), std::string(iKind) + " " + iText + " is not defined above");
    return found->second;
}

void Reader::Require(bool iCondition, const std::string& iComplaint) const
{
    if (!iCondition)
        throw InputError(_Model.path + ":" + std::to_string(_Line) + ": " + iComplaint);
}

} // namespace

Model ReadModel(const std::string& iPath)
{
    return Reader(iPath).Read();
}

} // namespace truss
