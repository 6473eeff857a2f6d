// Copyright The Tintmill authors. All rights reserved.

#include "Tintmill/GraderHelpers.h"

#include <typeinfo>

// The library and the quicker way for .cube files have to give the same pictures.

namespace LookPassGraderTest
{
using namespace TintmillTest;

/** The largest difference, in code values, between the two ways. */
static int DifferenceOfBothWays(const std::string& Text)
{
	const LookFile::FCheckedFile File = Checked(Text, "cube");
	return LargestDifference(ManyGraded(*Made(File, LookGrading::TableRank)), ManyGraded(*Made(File, LookGrading::LibraryRank)));
}

TEST(LookPassGrader, AgreesWithTheQuickWayOnAnAsymmetricTable)
{
	EXPECT_LE(DifferenceOfBothWays(AsymmetricCube(17)), 1);
}

TEST(LookPassGrader, AgreesWithTheQuickWayOnATableWithADomain)
{
	EXPECT_LE(DifferenceOfBothWays(AsymmetricCube(9, "DOMAIN_MIN -0.25 -0.25 -0.25\nDOMAIN_MAX 1.5 1.5 1.5\n", -0.25, 1.5)), 1);
}

TEST(LookPassGrader, AgreesWithTheQuickWayOnACurve)
{
	EXPECT_LE(DifferenceOfBothWays("LUT_1D_SIZE 4\n0 0.1 1\n0.2 0.5 0.7\n0.9 0.6 0.3\n1 0.95 0\n"), 1);
}

TEST(LookPassGrader, AgreesWithTheQuickWayOnACurveBeforeATable)
{
	EXPECT_LE(DifferenceOfBothWays(CurveAndTable()), 1);
}

TEST(LookPassGrader, IsNotTheQuickWay)
{
	const LookFile::FCheckedFile File = Checked(AsymmetricCube(3), "cube");
	const std::shared_ptr<const LookGrading::ILookGrader> Library = Made(File, LookGrading::LibraryRank);
	const std::shared_ptr<const LookGrading::ILookGrader> Quick = Made(File, LookGrading::TableRank);
	const LookGrading::ILookGrader& LibraryGrader = *Library;
	const LookGrading::ILookGrader& QuickGrader = *Quick;
	EXPECT_NE(typeid(LibraryGrader), typeid(QuickGrader));
}
}
