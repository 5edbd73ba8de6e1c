#ifndef TrussSolver_h
#define TrussSolver_h

#include <Eigen/SparseCholesky>
#include <Eigen/SparseCore>

#include "TrussModel.h"

namespace truss
{

/// Tension is positive.
struct BarResult {
    double elongation;
    double force;
    double stress;
};

/// The response to a load case. Lists by node or bar are in the model's order.
struct Solution {
    std::vector<Vector> loads; ///< Sum of the loads by node.
    std::vector<Vector> displacements;
    std::vector<BarResult> bars;
    std::vector<Vector> reactions; ///< By node; 0 in the free directions.
    double residual = 0;           ///< Largest force out of balance in a free direction.
    /// Smallest ratio of what elimination leaves of a direction's stiffness; near 0 for a structure
    /// near to a mechanism.
    double smallestPivot = 1;
};

/// Linear statics of a space truss: small displacements, bars carry axial force only.
class Solver
{
public:
    /// Factorises the stiffness. Throws InputError for a mechanism and names a node that moves. The
    /// model must outlive the solver.
    explicit Solver(const Model& iModel);

    /// Throws InputError when the results leave the range of numbers.
    Solution Solve(const LoadCase& iCase) const;

private:
    using Matrix = Eigen::SparseMatrix<double>;

    /// A free direction of a node.
    struct Direction {
        std::size_t node;
        int axis;
    };

    Matrix Stiffness() const;
    void CheckPivots(const Eigen::VectorXd& iDiagonal);
    std::vector<Vector> Displacements(const std::vector<Vector>& iLoads) const;
    BarResult Response(const Bar& iBar, const std::vector<Vector>& iDisplacements) const;
    void Balance(Solution& ioSolution) const;

    const Model& _Model;
    std::vector<Direction> _Directions;      // by equation
    std::vector<Eigen::Vector3i> _Equations; // by node; Fixed in the supported directions
    Eigen::SimplicialLDLT<Matrix> _Factor;
    double _SmallestPivot = 1;
};

} // namespace truss

#endif
