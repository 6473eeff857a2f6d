// Copyright The Tintmill authors. All rights reserved.

#include "Host/Ui/Sight.h"

#include <gtest/gtest.h>

using namespace TintmillHost;

namespace
{
FSeen Seen(ESeenKind Kind, const std::string& Label, float X = 0.0f)
{
	FSeen Thing;
	Thing.Kind = Kind;
	Thing.Label = Label;
	Thing.Center = FVector2D(X, 0.0f);
	return Thing;
}

TEST(Sight, ARowGoesBeforeATextOfTheSameLabel)
{
	const std::vector<FSeen> Things = {Seen(ESeenKind::Text, "Lit"), Seen(ESeenKind::MenuRow, "Lit")};
	EXPECT_EQ(FindSeen(Things, "Lit"), &Things[1]);
}

TEST(Sight, OfTwoOfAKindTheTopmostIsMeant)
{
	const std::vector<FSeen> Things = {Seen(ESeenKind::Button, "Lit", 1.0f), Seen(ESeenKind::Button, "Lit", 2.0f)};
	EXPECT_EQ(FindSeen(Things, "Lit"), &Things[0]);
}

TEST(Sight, TheExactSpellingGoesBeforeAnotherCase)
{
	const std::vector<FSeen> Things = {Seen(ESeenKind::MenuRow, "LIT"), Seen(ESeenKind::Text, "Lit")};
	EXPECT_EQ(FindSeen(Things, "Lit"), &Things[1]);
}

TEST(Sight, AnotherCaseIsUnderstood)
{
	const std::vector<FSeen> Things = {Seen(ESeenKind::MenuRow, "Enable Display")};
	EXPECT_EQ(FindSeen(Things, "enable display"), &Things[0]);
}

TEST(Sight, APartOfALabelMeansNothing)
{
	const std::vector<FSeen> Things = {Seen(ESeenKind::MenuRow, "Enable Display")};
	EXPECT_EQ(FindSeen(Things, "Enable"), nullptr);
}

TEST(Sight, EveryLabelIsNamedOnce)
{
	const std::vector<FSeen> Things = {Seen(ESeenKind::Button, "Lit"), Seen(ESeenKind::Button, "Show"), Seen(ESeenKind::Button, "Lit")};
	EXPECT_EQ(NameLabels(Things), "'Lit', 'Show'");
}

TEST(Sight, WithoutLabelsThereIsNothing)
{
	EXPECT_EQ(NameLabels({}), "nothing");
}
}
