#include "TrussSolver.h"

#include <algorithm>
#include <cmath>

namespace truss
{
namespace
{

constexpr int Fixed = -1;

/// A pivot is exact up to some rounding errors of the direction's own stiffness, about 1e-16 each;
/// one below this bound is noise, and so would be the displacements.
constexpr double PivotTolerance = 1e-11;

/// False for what is not a number, too.
bool IsInRange(const Solution& iSolution)
{
    const auto isSmall = [](const Vector& iVector) { return iVector.norm() <= LargestNumber; };
    const auto areSmall = [&](const std::vector<Vector>& iVectors) {
        return std::all_of(iVectors.begin(), iVectors.end(), isSmall);
    };
    return areSmall(iSolution.loads) && areSmall(iSolution.displacements) &&
           areSmall(iSolution.reactions) &&
           std::all_of(iSolution.bars.begin(), iSolution.bars.end(), [&](const BarResult& iBar) {
               return isSmall({iBar.elongation, iBar.force, iBar.stress});
           });
}

} // namespace

Solver::Solver(const Model& iModel) : _Model(iModel)
{
    for (std::size_t node = 0; node < iModel.nodes.size(); ++node) {
        _Equations.emplace_back(Fixed, Fixed, Fixed);
        for (int axis = 0; axis < 3; ++axis) {
            if (iModel.nodes[node].fixed[axis])
                continue;
            _Equations[node][axis] = static_cast<int>(_Directions.size());
            _Directions.push_back({node, axis});
        }
    }
    const Matrix stiffness = Stiffness();
    _Factor.compute(stiffness);
    CheckPivots(stiffness.diagonal());
}

Solver::Matrix Solver::Stiffness() const
{
    std::vector<Eigen::Triplet<double>> entries;
    for (const Bar& bar : _Model.bars) {
        const Vector direction = _Model.Span(bar).normalized();
        Eigen::Matrix<double, 6, 1> elongation; // by the displacements of both ends
        elongation << -direction, direction;
        Eigen::Matrix<int, 6, 1> equations;
        equations << _Equations[bar.start], _Equations[bar.end];
        for (int i = 0; i < 36; ++i) {
            const int row = i / 6;
            const int column = i % 6;
            if (equations[row] != Fixed && equations[column] != Fixed)
                entries.emplace_back(equations[row], equations[column],
                                     _Model.Stiffness(bar) * elongation[row] * elongation[column]);
        }
    }
    const auto size = static_cast<int>(_Directions.size());
    Matrix stiffness(size, size);
    stiffness.setFromTriplets(entries.begin(), entries.end());
    return stiffness;
}

/// When the first bad pivot turns up, the directions eliminated before it and its own can move
/// without any bar changing its length, and its own does move.
void Solver::CheckPivots(const Eigen::VectorXd& iDiagonal)
{
    const Eigen::VectorXd pivots = _Factor.vectorD();
    for (Eigen::Index i = 0; i < pivots.size(); ++i) {
        const int equation = _Factor.permutationPinv().indices()[i];
        const double pivot = pivots[i] / iDiagonal[equation];
        if (!(pivot > PivotTolerance)) { // a direction without any stiffness gives 0/0
            const Direction& direction = _Directions[static_cast<std::size_t>(equation)];
            throw InputError(_Model.path + ": the structure is a mechanism: node " +
                             _Model.nodes[direction.node].name + " is free to move in " +
                             AxisNames[direction.axis]);
        }
        _SmallestPivot = std::min(_SmallestPivot, pivot);
    }
}

Solution Solver::Solve(const LoadCase& iCase) const
{
    Solution solution;
    solution.smallestPivot = _SmallestPivot;
    solution.loads.assign(_Model.nodes.size(), Vector::Zero());
    for (const Load& load : iCase.loads)
        solution.loads[load.node] += load.force;
    solution.displacements = Displacements(solution.loads);
    for (const Bar& bar : _Model.bars)
        solution.bars.push_back(Response(bar, solution.displacements));
    Balance(solution);
    if (!IsInRange(solution))
        throw InputError(_Model.path + ": load case " + iCase.name +
                         ": the results are out of range");
    return solution;
}

std::vector<Vector> Solver::Displacements(const std::vector<Vector>& iLoads) const
{
    std::vector<Vector> displacements(_Model.nodes.size(), Vector::Zero());
    if (_Directions.empty())
        return displacements;
    Eigen::VectorXd loads(static_cast<Eigen::Index>(_Directions.size()));
    Eigen::Index equation = 0;
    for (const Direction& direction : _Directions)
        loads[equation++] = iLoads[direction.node][direction.axis];
    const Eigen::VectorXd values = _Factor.solve(loads);
    equation = 0;
    for (const Direction& direction : _Directions)
        displacements[direction.node][direction.axis] = values[equation++];
    return displacements;
}

BarResult Solver::Response(const Bar& iBar, const std::vector<Vector>& iDisplacements) const
{
    const Vector change = iDisplacements[iBar.end] - iDisplacements[iBar.start];
    const double elongation = change.dot(_Model.Span(iBar).normalized());
    const double force = _Model.Stiffness(iBar) * elongation;
    return {elongation, force, force / iBar.area};
}

/// What loads and bars leave out of balance at a node is the reaction where it is supported, and
/// the error of the solution where it is free.
void Solver::Balance(Solution& ioSolution) const
{
    std::vector<Vector> forces = ioSolution.loads;
    for (std::size_t i = 0; i < _Model.bars.size(); ++i) {
        const Bar& bar = _Model.bars[i];
        const Vector pull = ioSolution.bars[i].force * _Model.Span(bar).normalized();
        forces[bar.start] += pull;
        forces[bar.end] -= pull;
    }
    ioSolution.reactions.assign(_Model.nodes.size(), Vector::Zero());
    for (std::size_t node = 0; node < _Model.nodes.size(); ++node) {
        for (int axis = 0; axis < 3; ++axis) {
            if (_Model.nodes[node].fixed[axis])
                ioSolution.reactions[node][axis] = -forces[node][axis];
            else
                ioSolution.residual = std::max(ioSolution.residual, std::abs(forces[node][axis]));
        }
    }
}

} // namespace truss
