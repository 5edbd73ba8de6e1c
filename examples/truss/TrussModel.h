#ifndef TrussModel_h
#define TrussModel_h

#include <cstddef>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include <Eigen/Core>

namespace truss
{

using Vector = Eigen::Vector3d;

/// What the user gave cannot be used; the text says where and why.
class InputError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Largest magnitude that a report can show, in single precision.
constexpr double LargestNumber = std::numeric_limits<float>::max();

/// Names of the axes 0, 1 and 2.
constexpr const char* AxisNames = "xyz";

struct Material {
    std::string name;
    double modulus = 0;
    double density = 0; ///< 0 for a material without mass.
};

struct Node {
    std::string name;
    Vector position;
    Eigen::Array<bool, 3, 1> fixed = {false, false, false}; ///< The supported directions.
};

/// A straight bar, pinned at its two nodes. Nodes and materials are positions in the model's lists.
struct Bar {
    std::string name;
    std::size_t start;
    std::size_t end;
    std::size_t material;
    double area;
};

struct Load {
    std::size_t node;
    Vector force;
};

/// Loads that act together; those at one node add up.
struct LoadCase {
    std::string name;
    std::vector<Load> loads;
};

/// A space truss. Stresses and moduli are in force/length^2, densities in mass/length^3. Names and
/// units hold no character that is special in HTML, as headings and labels of a report show them.
struct Model {
    std::string path; ///< The file it comes from.
    std::string title;
    std::string lengthUnit;
    std::string forceUnit;
    std::string massUnit;
    std::vector<Material> materials;
    std::vector<Node> nodes;
    std::vector<Bar> bars;
    std::vector<LoadCase> cases;

    /// From the first node of a bar to the second.
    Vector Span(const Bar& iBar) const
    {
        return nodes[iBar.end].position - nodes[iBar.start].position;
    }
    double Length(const Bar& iBar) const { return Span(iBar).norm(); }
    double Volume(const Bar& iBar) const { return iBar.area * Length(iBar); }
    /// Axial force by elongation.
    double Stiffness(const Bar& iBar) const
    {
        return materials[iBar.material].modulus * iBar.area / Length(iBar);
    }
    std::string StressUnit() const { return forceUnit + "/" + lengthUnit + "^2"; }
};

/// Smallest box around the nodes.
struct Box {
    Vector low;
    Vector high;

    Vector Centre() const { return (low + high) / 2; }
    double Diagonal() const { return (high - low).norm(); }
};

inline Box BoxAround(const Model& iModel)
{
    Box box{iModel.nodes.front().position, iModel.nodes.front().position};
    for (const Node& node : iModel.nodes) {
        box.low = box.low.cwiseMin(node.position);
        box.high = box.high.cwiseMax(node.position);
    }
    return box;
}

} // namespace truss

#endif
