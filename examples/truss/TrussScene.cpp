#include "TrussFigures.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include <Eigen/Geometry>

namespace truss
{
namespace
{

/// Radius of the thickest bar by the size of the structure.
constexpr double Thickness = 0.006;

// Shapes of unit size for the parts to use: a cylinder and a cone stand along y, from -1 to 1. VRML
// looks along -z with y up: the structure, whose z is up, is turned.
const char* const Head = R"(#VRML V2.0 utf8
NavigationInfo { type "EXAMINE" }
Background { skyColor 0.93 0.95 1 }
Switch { choice [
  DEF BAR Shape { geometry Cylinder {}
    appearance Appearance { material Material { diffuseColor 0.45 0.52 0.62 } } }
  DEF JOINT Shape { geometry Sphere {}
    appearance Appearance { material Material { diffuseColor 0.2 0.2 0.25 } } }
  DEF SUPPORT Shape { geometry Cone {}
    appearance Appearance { material Material { diffuseColor 0.8 0.3 0.2 } } }
] }
)";

const char* const Upright = "1 0 0 -1.5708";

struct Text {
    const Vector& vector;
};

std::ostream& operator<<(std::ostream& ioOut, const Text& iText)
{
    return ioOut << iText.vector.x() << ' ' << iText.vector.y() << ' ' << iText.vector.z();
}

std::ostream& operator<<(std::ostream& ioOut, const Eigen::AngleAxisd& iTurn)
{
    return ioOut << Text{iTurn.axis()} << ' ' << iTurn.angle();
}

template <typename Turn>
void WritePart(std::ostream& ioOut, const char* iShape, const Vector& iMiddle, const Turn& iTurn,
               const Vector& iSize)
{
    ioOut << "Transform { translation " << Text{iMiddle} << " rotation " << iTurn << " scale "
          << Text{iSize} << " children USE " << iShape << " }\n";
}

void WriteBar(std::ostream& ioOut, const Model& iModel, const Bar& iBar, double iRadius)
{
    const Vector span = iModel.Span(iBar);
    const Vector axis = Vector::UnitY().cross(span);
    const Eigen::AngleAxisd turn(std::atan2(axis.norm(), span.y()),
                                 axis.isZero(0) ? Vector::UnitX() : axis.normalized());
    WritePart(ioOut, "BAR", iModel.nodes[iBar.start].position + span / 2, turn,
              {iRadius, span.norm() / 2, iRadius});
}

/// The viewer stands where the one of the drawings does, far enough to see everything.
void WriteViewpoint(std::ostream& ioOut, double iSize)
{
    const Eigen::AngleAxisd turn(Eigen::AngleAxisd(std::atan(1.0), Vector::UnitY()) *
                                 Eigen::AngleAxisd(-std::atan(std::sqrt(0.5)), Vector::UnitX()));
    const Vector position = Vector::Constant(0.9 * iSize);
    ioOut << "Viewpoint { position " << Text{position} << " orientation " << turn
          << " description \"isometric\" }\n";
}

double LargestArea(const Model& iModel)
{
    const auto isSmaller = [](const Bar& iLeft, const Bar& iRight) {
        return iLeft.area < iRight.area;
    };
    return std::max_element(iModel.bars.begin(), iModel.bars.end(), isSmaller)->area;
}

} // namespace

std::string WriteScene(const Model& iModel)
{
    const Box box = BoxAround(iModel);
    const double radius = Thickness * box.Diagonal();
    const double largestArea = LargestArea(iModel);
    std::ostringstream out;
    out.imbue(std::locale::classic());
    out << Head;
    WriteViewpoint(out, box.Diagonal());
    out << "Transform { rotation " << Upright << " children Transform { translation "
        << Text{-box.Centre()} << " children [\n";
    for (const Bar& bar : iModel.bars)
        WriteBar(out, iModel, bar, radius * std::sqrt(bar.area / largestArea));
    for (const Node& node : iModel.nodes) {
        WritePart(out, "JOINT", node.position, "0 1 0 0", Vector::Constant(1.2 * radius));
        if (node.fixed.any())
            WritePart(out, "SUPPORT", node.position - Vector(0, 0, 3 * radius), "1 0 0 1.5708",
                      Vector::Constant(3 * radius));
    }
    out << "] } }\n";
    return out.str();
}

} // namespace truss
