#include <gtest/gtest.h>

#include "TrussReader.h"
#include "TrussSolver.h"

namespace
{

using truss::Vector;

void ExpectNear(const Vector& iActual, const Vector& iExpected)
{
    EXPECT_LT((iActual - iExpected).norm(), 1e-9 * iExpected.norm())
        << iActual.transpose() << " instead of " << iExpected.transpose();
}

} // namespace

TEST(Truss, ClosedForm)
{
    truss::Model model = truss::ReadModel(MODEL_DIRECTORY "/two_bar.truss");
    model.cases[0].loads.push_back({0, {8000, 0, 0}}); // on a support, which takes it at once
    const truss::Solver solver(model);
    const truss::Solution weight = solver.Solve(model.cases[0]);
    ExpectNear(weight.displacements[2], {0, 0, -0.005});
    ExpectNear(weight.reactions[0], {40000, 0, 36000});
    const truss::Solution sway = solver.Solve(model.cases[1]);
    ExpectNear(sway.displacements[2], {0.005, 0, 0});
    ExpectNear(sway.reactions[1], {-64000, 0, 48000});
    for (std::size_t bar = 0; bar < 2; ++bar) {
        const double sign = bar == 0 ? 1 : -1;
        EXPECT_NEAR(weight.bars[bar].stress, -1.2e8, 0.12);
        EXPECT_NEAR(sway.bars[bar].force, sign * 80000, 8e-5);
        EXPECT_NEAR(sway.bars[bar].elongation, sign * 0.004, 4e-12);
    }
}

// The areas are those of a design whose displacements reach the limit of 0.35 in.
TEST(Truss, TowerReachesItsLimit)
{
    const truss::Model model = truss::ReadModel(MODEL_DIRECTORY "/tower25.truss");
    const truss::Solution solution = truss::Solver(model).Solve(model.cases[0]);
    EXPECT_NEAR(solution.displacements[0].y(), 0.35, 1e-4);
}
