#include "TrussFigures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iomanip>
#include <locale>
#include <numeric>
#include <sstream>

namespace truss
{
namespace
{

using Point = Eigen::Vector2d;

constexpr double AreaWidth = 620;
constexpr double LowestArea = 420;
constexpr double HighestArea = 900;
constexpr double Margin = 90;
constexpr double LegendLeft = AreaWidth + 2 * Margin;
constexpr double PageWidth = LegendLeft + 190;
constexpr double LongestArrow = 70;
constexpr double ShortestArrow = 22;
constexpr std::size_t MostNamedNodes = 40;
constexpr std::ptrdiff_t MostNamedLoads = 10;

const char* const Style = "text{font:13px sans-serif;fill:#222}"
                          ".small{font-size:12px;fill:#555}"
                          ".name{font-weight:bold;paint-order:stroke;stroke:white;stroke-width:4px}"
                          ".force{fill:#1b7837;paint-order:stroke;stroke:white;stroke-width:4px}"
                          "line{stroke-linecap:round}"
                          ".undeformed{stroke:#8a93a0;stroke-width:1;stroke-dasharray:4 4}"
                          ".load{stroke:#1b7837;stroke-width:2;stroke-linecap:butt}"
                          ".axis{stroke:#222;stroke-width:1.5}"
                          ".joint{fill:#222}"
                          ".support{fill:#5a6472;stroke:#5a6472;stroke-width:1.5}"
                          ".partial{fill:white}";

/// Colours from the largest compression to the largest tension, equally spaced.
constexpr int StopNb = 5;
const std::array<Vector, StopNb> Stops = {Vector(33, 102, 172), Vector(92, 158, 204),
                                          Vector(190, 190, 190), Vector(233, 126, 90),
                                          Vector(178, 24, 43)};

/// Isometric: a length along any axis keeps its size. The viewer stands at (1, -1, 1).
Point Project(const Vector& iPosition)
{
    const double cos30 = std::sqrt(3.0) / 2;
    return {(iPosition.x() + iPosition.y()) * cos30,
            (iPosition.x() - iPosition.y()) / 2 - iPosition.z()};
}

double Nearness(const Vector& iPosition)
{
    return iPosition.x() - iPosition.y() + iPosition.z();
}

double LargestNorm(const std::vector<Vector>& iVectors)
{
    double largest = 0;
    for (const Vector& vector : iVectors)
        largest = std::max(largest, vector.norm());
    return largest;
}

/// The largest of 1, 2 and 5 times a power of ten that is not above a positive number.
double RoundDown(double iNumber)
{
    const double power = std::pow(10, std::floor(std::log10(iNumber)));
    const double digit = iNumber / power;
    return (digit >= 5 ? 5 : digit >= 2 ? 2 : 1) * power;
}

std::string Colour(const Vector& iRgb)
{
    const auto part = [&](int iIndex) { return std::to_string(std::lround(iRgb[iIndex])); };
    return "rgb(" + part(0) + "," + part(1) + "," + part(2) + ")";
}

/// Colour of a stress from -1, the largest compression, to 1.
std::string StressColour(double iStress)
{
    const double place = (iStress + 1) / 2 * (StopNb - 1);
    const auto below = static_cast<std::size_t>(std::clamp(place, 0.0, StopNb - 2.0));
    return Colour(Stops[below] +
                  (place - static_cast<double>(below)) * (Stops[below + 1] - Stops[below]));
}

class Drawing
{
public:
    Drawing(const Model& iModel, const Solution& iSolution);

    std::string Write();

private:
    void Fit();
    Point OnPage(const Vector& iPosition) const { return _Origin + _Scale * Project(iPosition); }
    double BarWidth() const;

    void WriteHead();
    void WriteUndeformed();
    void WriteDeformed();
    void WriteSupport(const Point& iTip, bool iIsFull);
    void WriteSupports();
    void WriteLoads();
    void WriteNames();
    void WriteColourScale();
    void WriteKey();
    void WriteLengthScale();
    void WriteAxes();

    void Line(const std::string& iClass, const Point& iFrom, const Point& iTo,
              const std::string& iMore = "");
    void Text(const std::string& iClass, const Point& iAt, const std::string& iText,
              const std::string& iMore = "");

    const Model& _Model;
    const Solution& _Solution;
    const double _Enlargement;
    double _LargestStress = 0;
    std::vector<Vector> _Deformed;
    Point _Origin;
    double _Scale = 1; // of the page, by unit of length
    double _AreaHeight = LowestArea;
    std::ostringstream _Out;
};

Drawing::Drawing(const Model& iModel, const Solution& iSolution)
    : _Model(iModel), _Solution(iSolution), _Enlargement(DisplacementScale(iModel, iSolution))
{
    for (std::size_t i = 0; i < iModel.nodes.size(); ++i)
        _Deformed.push_back(iModel.nodes[i].position + _Enlargement * iSolution.displacements[i]);
    for (const BarResult& bar : iSolution.bars)
        _LargestStress = std::max(_LargestStress, std::abs(bar.stress));
    _Out.imbue(std::locale::classic());
    _Out << std::fixed << std::setprecision(1);
    Fit();
}

/// Both shapes fill the area; what is slim gets a high page.
void Drawing::Fit()
{
    Point low = Project(_Deformed.front());
    Point high = low;
    const auto include = [&](const Vector& iPosition) {
        low = low.cwiseMin(Project(iPosition));
        high = high.cwiseMax(Project(iPosition));
    };
    std::for_each(_Deformed.begin(), _Deformed.end(), include);
    for (const Node& node : _Model.nodes)
        include(node.position);
    const Point size = (high - low).cwiseMax(1e-3 * BoxAround(_Model).Diagonal());
    _AreaHeight = std::clamp(AreaWidth * size.y() / size.x(), LowestArea, HighestArea);
    _Scale = std::min(AreaWidth / size.x(), _AreaHeight / size.y());
    const Point centre(Margin + AreaWidth / 2, Margin + _AreaHeight / 2);
    _Origin = centre - _Scale * (low + high) / 2;
}

std::string Drawing::Write()
{
    WriteHead();
    WriteUndeformed();
    WriteSupports();
    WriteDeformed();
    WriteLoads();
    WriteNames();
    WriteColourScale();
    WriteKey();
    WriteLengthScale();
    WriteAxes();
    _Out << "</svg>\n";
    return _Out.str();
}

void Drawing::WriteHead()
{
    const double height = _AreaHeight + 2 * Margin;
    _Out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << PageWidth << "\" height=\""
         << height << "\" viewBox=\"0 0 " << PageWidth << ' ' << height << "\">\n<style>" << Style
         << "</style>\n<defs>\n"
         << "<marker id=\"head\" viewBox=\"0 0 10 10\" refX=\"10\" refY=\"5\" markerWidth=\"5\" "
            "markerHeight=\"5\" orient=\"auto\"><path d=\"M0,0L10,5L0,10z\" fill=\"#1b7837\"/>"
            "</marker>\n<linearGradient id=\"stress\" x1=\"0\" y1=\"1\" x2=\"0\" y2=\"0\">";
    for (std::size_t i = 0; i < StopNb; ++i)
        _Out << "<stop offset=\"" << 100 * static_cast<double>(i) / (StopNb - 1)
             << "%\" stop-color=\"" << Colour(Stops[i]) << "\"/>";
    _Out << "</linearGradient>\n</defs>\n<rect x=\"0.5\" y=\"0.5\" width=\"" << PageWidth - 1
         << "\" height=\"" << height - 1 << "\" rx=\"8\" fill=\"white\" stroke=\"#99aaff\"/>\n";
}

void Drawing::WriteUndeformed()
{
    for (const Bar& bar : _Model.bars)
        Line("undeformed", OnPage(_Model.nodes[bar.start].position),
             OnPage(_Model.nodes[bar.end].position));
}

double Drawing::BarWidth() const
{
    return std::clamp(25 / std::sqrt(static_cast<double>(_Model.bars.size())), 1.6, 3.6);
}

/// Near bars cover far ones.
void Drawing::WriteDeformed()
{
    const auto nearness = [this](std::size_t iBar) {
        const Bar& bar = _Model.bars[iBar];
        return Nearness(_Deformed[bar.start] + _Deformed[bar.end]);
    };
    std::vector<std::size_t> order(_Model.bars.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t iLeft, std::size_t iRight) {
        return nearness(iLeft) < nearness(iRight);
    });
    _Out << "<g stroke-width=\"" << BarWidth() << "\">\n";
    for (const std::size_t i : order) {
        const Bar& bar = _Model.bars[i];
        const double stress = _LargestStress > 0 ? _Solution.bars[i].stress / _LargestStress : 0;
        Line("deformed", OnPage(_Deformed[bar.start]), OnPage(_Deformed[bar.end]),
             "stroke=\"" + StressColour(stress) + "\"");
    }
    _Out << "</g>\n";
    for (const Vector& position : _Deformed)
        _Out << "<circle class=\"joint\" cx=\"" << OnPage(position).x() << "\" cy=\""
             << OnPage(position).y() << "\" r=\"" << BarWidth() * 0.7 << "\"/>\n";
}

void Drawing::WriteSupport(const Point& iTip, bool iIsFull)
{
    _Out << "<path class=\"support" << (iIsFull ? "" : " partial") << "\" d=\"M" << iTip.x() << ','
         << iTip.y() << "l9,16h-18z\"/>\n";
}

void Drawing::WriteSupports()
{
    for (const Node& node : _Model.nodes) {
        if (node.fixed.any())
            WriteSupport(OnPage(node.position), node.fixed.all());
    }
}

/// An arrow ends at its node; arrows grow with the force, but the smallest can still be seen.
void Drawing::WriteLoads()
{
    const double largest = LargestNorm(_Solution.loads);
    const auto loadNb = std::count_if(_Solution.loads.begin(), _Solution.loads.end(),
                                      [](const Vector& iLoad) { return iLoad.norm() > 0; });
    for (std::size_t i = 0; i < _Solution.loads.size(); ++i) {
        const double force = _Solution.loads[i].norm();
        if (!(force > 0))
            continue;
        const Point direction = Project(_Solution.loads[i] / force);
        const double length = ShortestArrow + (LongestArrow - ShortestArrow) * force / largest;
        const Point tip = OnPage(_Model.nodes[i].position);
        const Point tail = tip - length * direction;
        Line("load", tail, tip, "marker-end=\"url(#head)\"");
        if (loadNb <= MostNamedLoads)
            Text("force", tail + Point(0, direction.y() > 0 ? -6 : 16),
                 ShortNumber(force) + " " + _Model.forceUnit, "text-anchor=\"middle\"");
    }
}

void Drawing::WriteNames()
{
    if (_Model.nodes.size() > MostNamedNodes)
        return;
    for (const Node& node : _Model.nodes)
        Text("name", OnPage(node.position) + Point(8, -7), node.name);
}

void Drawing::WriteColourScale()
{
    const double top = 70;
    const double height = 200;
    Text("", {LegendLeft, 34}, "Stress of the bars");
    Text("small", {LegendLeft, 52}, "in " + _Model.StressUnit() + ", tension positive");
    _Out << "<rect x=\"" << LegendLeft << "\" y=\"" << top << "\" width=\"22\" height=\"" << height
         << "\" fill=\"url(#stress)\"/>\n";
    for (int i = 0; i < StopNb; ++i) {
        const double part = i / (StopNb - 1.0);
        const double y = top + height * (1 - part);
        Line("axis", {LegendLeft + 22, y}, {LegendLeft + 28, y});
        Text("", {LegendLeft + 34, y + 4}, ShortNumber(_LargestStress * (2 * part - 1)));
    }
}

void Drawing::WriteKey()
{
    const double text = LegendLeft + 50;
    Line("undeformed", {LegendLeft, 310}, {LegendLeft + 40, 310});
    Text("", {text, 314}, "undeformed");
    Line("deformed", {LegendLeft, 336}, {LegendLeft + 40, 336},
         "stroke=\"#5a6472\" stroke-width=\"3\"");
    Text("", {text, 340}, "deformed,");
    Text("", {text, 356}, "enlarged " + ShortNumber(_Enlargement) + " times");
    Line("load", {LegendLeft, 378}, {LegendLeft + 40, 378}, "marker-end=\"url(#head)\"");
    Text("", {text, 382}, "load, at most");
    Text("", {text, 398}, ShortNumber(LargestNorm(_Solution.loads)) + " " + _Model.forceUnit);
    WriteSupport({LegendLeft + 10, 413}, true);
    WriteSupport({LegendLeft + 32, 413}, false);
    Text("", {text, 420}, "fixed in all");
    Text("", {text, 436}, "or some directions");
}

void Drawing::WriteLengthScale()
{
    const double y = 476;
    const double length = RoundDown(150 / _Scale);
    const double right = LegendLeft + length * _Scale;
    Line("axis", {LegendLeft, y}, {right, y});
    for (const double x : {LegendLeft, right})
        Line("axis", {x, y - 5}, {x, y + 5});
    Text("", {LegendLeft, y + 22}, ShortNumber(length) + " " + _Model.lengthUnit);
    Text("small", {LegendLeft, y + 40}, "along the axes");
}

void Drawing::WriteAxes()
{
    const Point origin(60, _AreaHeight + 2 * Margin - 50);
    for (int axis = 0; axis < 3; ++axis) {
        const Point direction = Project(Vector::Unit(axis));
        Line("axis", origin, origin + 32 * direction);
        Text("", origin + 42 * direction + Point(0, 4), std::string(1, AxisNames[axis]),
             "text-anchor=\"middle\"");
    }
}

void Drawing::Line(const std::string& iClass, const Point& iFrom, const Point& iTo,
                   const std::string& iMore)
{
    _Out << "<line class=\"" << iClass << "\" x1=\"" << iFrom.x() << "\" y1=\"" << iFrom.y()
         << "\" x2=\"" << iTo.x() << "\" y2=\"" << iTo.y() << "\" " << iMore << "/>\n";
}

/// Names and units need no escaping: they hold no special character.
void Drawing::Text(const std::string& iClass, const Point& iAt, const std::string& iText,
                   const std::string& iMore)
{
    _Out << "<text class=\"" << iClass << "\" x=\"" << iAt.x() << "\" y=\"" << iAt.y() << "\" "
         << iMore << '>' << iText << "</text>\n";
}

} // namespace

std::string ShortNumber(double iNumber)
{
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << iNumber + 0.0; // a negative zero becomes a plain one
    return text.str();
}

double DisplacementScale(const Model& iModel, const Solution& iSolution)
{
    const double scale = BoxAround(iModel).Diagonal() / 15 / LargestNorm(iSolution.displacements);
    return std::isfinite(scale) ? RoundDown(scale) : 1; // nothing moves
}

std::string DrawSvg(const Model& iModel, const Solution& iSolution)
{
    return Drawing(iModel, iSolution).Write();
}

} // namespace truss
