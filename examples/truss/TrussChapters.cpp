#include "TrussChapters.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include <Eigen/Geometry>

#include "TrussFigures.h"
#include "VORKTRArrayTable.h"
#include "VORKTRFigure.h"
#include "VORKTRHeading.h"
#include "VORKTRProse.h"
#include "VORKTRReportingFile.h"
#include "VORKTRReportingList.h"
#include "VORKTRTableCaption.h"

namespace truss
{
namespace
{

constexpr int DrawingWidth = 800; // on the page, in CSS pixels

/// Adds an item and returns it; the bag owns it.
template <typename Item>
Item& Add(VORKTRReportingBag& ioBag, Item* ioItem)
{
    ioBag.AddObject(ioItem);
    return *ioItem;
}

void AddTitle(VORKTRReportingBag& ioBag, const std::string& iText, int iLevel)
{
    Add(ioBag, new VORKTRHeading(iText, iLevel));
}

void AddText(VORKTRReportingBag& ioBag, const std::string& iText)
{
    Add(ioBag, new VORKTRProse(iText));
}

void AddLine(VORKTRReportingList& ioList, const std::string& iLabel, double iValue,
             const std::string& iUnit, const char* iFormat = "%#.6g")
{
    ioList.addLine(iLabel, iValue, iUnit, iFormat);
}

void AddCount(VORKTRReportingList& ioList, const char* iLabel, std::size_t iCount)
{
    ioList.addLine(iLabel, static_cast<int>(iCount), "", "%d");
}

struct Quantity {
    std::string name;
    std::string unit = {};
};

/// A table row: names first, then numbers.
struct Row {
    std::vector<std::string> names;
    std::vector<double> numbers;
};

/// A table that brings its rows with it.
class RowTable : public VORKTRArrayTable
{
public:
    RowTable(const std::vector<Quantity>& iColumns, const std::vector<Row>& iRows);

private:
    // By column, as the table does not copy them.
    std::vector<std::vector<std::string>> _Names;
    std::vector<std::vector<double>> _Numbers;
};

/// Fixed-point with six digits for the largest number, so that the decimal points of a column stand
/// below each other; with an exponent for what would need many zeros.
std::string NumberFormat(double iLargest)
{
    const double exponent = iLargest > 0 ? std::floor(std::log10(iLargest)) : 0;
    if (exponent < -3 || exponent > 5)
        return "%11.4e";
    return "%10." + std::to_string(std::max(5 - static_cast<int>(exponent), 1)) + "f";
}

/// What is as small as a rounding error becomes a plain zero, a negative zero too.
double WithoutNoise(double iNumber, double iLargest)
{
    return std::abs(iNumber) > 1e-12 * iLargest ? iNumber : 0;
}

/// Largest magnitude in the number columns of one unit. They share a format, as the components of a
/// vector do.
double LargestOfUnit(const std::vector<Quantity>& iColumns, const std::vector<Row>& iRows,
                     const std::string& iUnit)
{
    double largest = 0;
    for (const Row& row : iRows) {
        for (std::size_t i = 0; i < row.numbers.size(); ++i) {
            if (iColumns[row.names.size() + i].unit == iUnit)
                largest = std::max(largest, std::abs(row.numbers[i]));
        }
    }
    return largest;
}

// A header row, and rules between the columns.
RowTable::RowTable(const std::vector<Quantity>& iColumns, const std::vector<Row>& iRows)
    : VORKTRArrayTable(VORKTRTableHeaderRow | VORKTRTableRuled, static_cast<int>(iRows.size()))
{
    const std::size_t nameNb = iRows.empty() ? 1 : iRows.front().names.size();
    _Names.resize(nameNb);
    _Numbers.resize(iColumns.size() - nameNb);
    for (std::size_t i = 0; i < iColumns.size(); ++i) {
        const auto& [name, unit] = iColumns[i];
        if (i < nameNb) {
            for (const Row& row : iRows)
                _Names[i].push_back(row.names[i]);
            AddColumn(name, unit, _Names[i].data());
            continue;
        }
        std::vector<double>& numbers = _Numbers[i - nameNb];
        const double largest = LargestOfUnit(iColumns, iRows, unit);
        for (const Row& row : iRows)
            numbers.push_back(WithoutNoise(row.numbers[i - nameNb], largest));
        AddColumn(name, unit, numbers.data(), NumberFormat(largest).c_str());
    }
}

/// Adds a table and returns its caption.
VORKTRTableCaption& AddTable(VORKTRReportingBag& ioBag, const std::string& iCaption,
                             const std::vector<Quantity>& iColumns, const std::vector<Row>& iRows)
{
    auto& caption = Add(ioBag, new VORKTRTableCaption(iCaption));
    Add(ioBag, new RowTable(iColumns, iRows));
    return caption;
}

/// Adds a table of the vectors of those nodes that iHas accepts, and returns its caption.
VORKTRTableCaption* AddVectorTable(VORKTRReportingBag& ioBag, const Model& iModel,
                                   const std::string& iCaption, const std::string& iSymbol,
                                   const std::string& iUnit, const std::vector<Vector>& iVectors,
                                   const std::function<bool(std::size_t)>& iHas)
{
    std::vector<Row> rows;
    for (std::size_t i = 0; i < iVectors.size(); ++i) {
        const Vector& vector = iVectors[i];
        if (iHas(i))
            rows.push_back(
                {{iModel.nodes[i].name}, {vector.x(), vector.y(), vector.z(), vector.norm()}});
    }
    return &AddTable(ioBag, iCaption,
                     {{"node"},
                      {iSymbol + "x", iUnit},
                      {iSymbol + "y", iUnit},
                      {iSymbol + "z", iUnit},
                      {"|" + iSymbol + "|", iUnit}},
                     rows);
}

void AddModelList(VORKTRReportingBag& ioBag, const Model& iModel)
{
    std::size_t fixedNb = 0;
    for (const Node& node : iModel.nodes)
        fixedNb += static_cast<std::size_t>(node.fixed.count());
    double volume = 0;
    double mass = 0;
    for (const Bar& bar : iModel.bars) {
        volume += iModel.Volume(bar);
        mass += iModel.Volume(bar) * iModel.materials[bar.material].density;
    }
    auto list = std::make_unique<VORKTRReportingList>('=');
    AddCount(*list, "Nodes", iModel.nodes.size());
    AddCount(*list, "Bars", iModel.bars.size());
    AddCount(*list, "Supported directions", fixedNb);
    AddCount(*list, "Load cases of the model", iModel.cases.size());
    const Box box = BoxAround(iModel);
    for (int axis = 0; axis < 3; ++axis)
        AddLine(*list, std::string("Extent in ") + AxisNames[axis], box.high[axis] - box.low[axis],
                iModel.lengthUnit);
    AddLine(*list, "Volume of the bars", volume, iModel.lengthUnit + "^3");
    if (mass > 0)
        AddLine(*list, "Mass of the bars", mass, iModel.massUnit);
    ioBag.AddObject(list.release());
}

std::string Supports(const Node& iNode)
{
    std::string directions;
    for (int axis = 0; axis < 3; ++axis) {
        if (iNode.fixed[axis])
            directions += AxisNames[axis];
    }
    return directions.empty() ? "-" : directions;
}

void AddNodes(VORKTRReportingBag& ioBag, const Model& iModel)
{
    std::vector<Row> rows;
    for (const Node& node : iModel.nodes)
        rows.push_back({{node.name, Supports(node)},
                        {node.position.x(), node.position.y(), node.position.z()}});
    const std::string& unit = iModel.lengthUnit;
    AddTable(ioBag, "Coordinates and supports of the nodes",
             {{"node"}, {"fixed"}, {"x", unit}, {"y", unit}, {"z", unit}}, rows);
}

void AddMaterials(VORKTRReportingBag& ioBag, const Model& iModel)
{
    std::vector<Row> rows;
    for (const Material& material : iModel.materials)
        rows.push_back({{material.name}, {material.modulus, material.density}});
    AddTable(ioBag, "Materials",
             {{"material"},
              {"modulus", iModel.StressUnit()},
              {"density", iModel.massUnit + "/" + iModel.lengthUnit + "^3"}},
             rows);
}

void AddBars(VORKTRReportingBag& ioBag, const Model& iModel)
{
    std::vector<Row> rows;
    for (const Bar& bar : iModel.bars)
        rows.push_back({{bar.name, iModel.nodes[bar.start].name, iModel.nodes[bar.end].name,
                         iModel.materials[bar.material].name},
                        {bar.area, iModel.Length(bar)}});
    AddTable(ioBag, "Connections and cross-sections of the bars",
             {{"bar"},
              {"from"},
              {"to"},
              {"material"},
              {"area", iModel.lengthUnit + "^2"},
              {"length", iModel.lengthUnit}},
             rows);
}

VORKTRTableCaption& AddBarResults(VORKTRReportingBag& ioBag, const Model& iModel,
                                  const Solution& iSolution)
{
    std::vector<Row> rows;
    for (std::size_t i = 0; i < iModel.bars.size(); ++i) {
        const BarResult& result = iSolution.bars[i];
        rows.push_back({{iModel.bars[i].name}, {result.elongation, result.force, result.stress}});
    }
    return AddTable(ioBag, "Elongations, forces and stresses of the bars; tension is positive",
                    {{"bar"},
                     {"elongation", iModel.lengthUnit},
                     {"force", iModel.forceUnit},
                     {"stress", iModel.StressUnit()}},
                    rows);
}

VORKTRFigure& AddDrawing(VORKTRReportingBag& ioBag, const Model& iModel, const Solution& iSolution,
                         const std::string& iPath)
{
    const std::string scale = ShortNumber(DisplacementScale(iModel, iSolution));
    const std::string caption = "Loads and deformed structure in isometric projection. The "
                                "displacements are enlarged " +
                                scale + " times; the colours give the stresses.";
    return Add(ioBag, new VORKTRFigure(iPath.c_str(), caption,
                                       "Drawing of the structure, its loads and its deformed shape",
                                       DrawingWidth));
}

/// Half of what the loads would do at full strength all the way.
double WorkOfLoads(const Solution& iSolution)
{
    double work = 0;
    for (std::size_t i = 0; i < iSolution.loads.size(); ++i)
        work += iSolution.loads[i].dot(iSolution.displacements[i]) / 2;
    return work;
}

double StrainEnergy(const Solution& iSolution)
{
    double energy = 0;
    for (const BarResult& bar : iSolution.bars)
        energy += bar.force * bar.elongation / 2;
    return energy;
}

void AddCheckList(VORKTRReportingBag& ioBag, const Model& iModel, const Solution& iSolution)
{
    Vector force = Vector::Zero();
    Vector moment = Vector::Zero();
    for (std::size_t i = 0; i < iModel.nodes.size(); ++i) {
        const Vector total = iSolution.loads[i] + iSolution.reactions[i];
        force += total;
        moment += iModel.nodes[i].position.cross(total);
    }
    const std::string& unit = iModel.forceUnit;
    const std::string work = unit + "*" + iModel.lengthUnit;
    auto list = std::make_unique<VORKTRReportingList>(':');
    AddLine(*list, "Largest unbalanced force in a free direction", iSolution.residual, unit,
            "%.2e");
    AddLine(*list, "Resultant force of loads and reactions", force.norm(), unit, "%.2e");
    AddLine(*list, "Their resultant moment about the origin", moment.norm(), work, "%.2e");
    AddLine(*list, "Work of the loads", WorkOfLoads(iSolution), work);
    AddLine(*list, "Strain energy of the bars", StrainEnergy(iSolution), work);
    AddLine(*list, "Smallest pivot by the direction's own stiffness", iSolution.smallestPivot, "",
            "%.2e");
    ioBag.AddObject(list.release());
}

} // namespace

Chapter MakeModelChapter(const Model& iModel, const std::string& iScenePath)
{
    auto chapter = std::make_unique<VORKTRReportingBag>();
    AddTitle(*chapter, "Model", 1);
    AddModelList(*chapter, iModel);
    AddTitle(*chapter, "Nodes", 2);
    AddNodes(*chapter, iModel);
    AddTitle(*chapter, "Bars", 2);
    AddTitle(*chapter, "Materials", 3);
    AddMaterials(*chapter, iModel);
    AddTitle(*chapter, "Connections and areas", 3);
    AddBars(*chapter, iModel);
    AddTitle(*chapter, "Scene", 2);
    AddText(*chapter,
            "Below, as figure 1, is the structure as a scene for a VRML viewer; a browser "
            "without one leaves the place empty and has the file as [Full page]. The radii of the "
            "bars are in proportion to each other, but not to scale.");
    chapter->AddObject(new VORKTRReportingFile(VORKTRReportingVRML, iScenePath.c_str()));
    return chapter;
}

Chapter MakeCaseChapter(const Model& iModel, const LoadCase& iCase, const Solution& iSolution,
                        const std::string& iDrawingPath)
{
    const auto isLoaded = [&](std::size_t iNode) { return !iSolution.loads[iNode].isZero(0); };
    const auto isSupported = [&](std::size_t iNode) { return iModel.nodes[iNode].fixed.any(); };
    const auto isAny = [](std::size_t) { return true; };
    auto chapter = std::make_unique<VORKTRReportingBag>();
    AddTitle(*chapter, "Load case " + iCase.name, 1);
    AddText(*chapter, Summarise(iModel, iCase, iSolution));
    const auto& drawing = AddDrawing(*chapter, iModel, iSolution, iDrawingPath);
    AddTitle(*chapter, "Displacements", 2);
    const auto* const moves = AddVectorTable(*chapter, iModel, "Displacements of the nodes", "u",
                                             iModel.lengthUnit, iSolution.displacements, isAny);
    AddTitle(*chapter, "Bar forces and stresses", 2);
    const auto& bars = AddBarResults(*chapter, iModel, iSolution);
    AddTitle(*chapter, "Loads and reactions", 2);
    AddTitle(*chapter, "Loads", 3);
    const auto* const loads = AddVectorTable(*chapter, iModel, "Loads on the nodes", "F",
                                             iModel.forceUnit, iSolution.loads, isLoaded);
    AddTitle(*chapter, "Reactions", 3);
    const auto* const reactions =
        AddVectorTable(*chapter, iModel, "Reactions of the supports", "R", iModel.forceUnit,
                       iSolution.reactions, isSupported);
    AddTitle(*chapter, "Check of the solution", 2);
    Add(*chapter, new VORKTRProse("The loads of "))
        .AddLink(*loads)
        .Add(" and the reactions of ")
        .AddLink(*reactions)
        .Add(" are in equilibrium: the first three lines are 0 but for rounding errors. The loads "
             "do as much work on the displacements of ")
        .AddLink(*moves)
        .Add(", drawn in ")
        .AddLink(drawing)
        .Add(", as the bar forces of ")
        .AddLink(bars)
        .Add(" store in the bars. A pivot near 0 means a near mechanism.");
    AddCheckList(*chapter, iModel, iSolution);
    return chapter;
}

std::string Summarise(const Model& iModel, const LoadCase& iCase, const Solution& iSolution)
{
    const auto movesLess = [](const Vector& iLeft, const Vector& iRight) {
        return iLeft.norm() < iRight.norm();
    };
    const auto isSmaller = [](const BarResult& iLeft, const BarResult& iRight) {
        return iLeft.stress < iRight.stress;
    };
    const auto& moves = iSolution.displacements;
    const auto largest = std::max_element(moves.begin(), moves.end(), movesLess);
    const auto node = static_cast<std::size_t>(largest - moves.begin());
    const auto [low, high] =
        std::minmax_element(iSolution.bars.begin(), iSolution.bars.end(), isSmaller);
    return "Load case " + iCase.name + " moves node " + iModel.nodes[node].name + " most, by " +
           ShortNumber(largest->norm()) + " " + iModel.lengthUnit + ". Its stresses range from " +
           ShortNumber(low->stress) + " to " + ShortNumber(high->stress) + " " +
           iModel.StressUnit() + ".";
}

} // namespace truss
