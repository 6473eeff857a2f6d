// Copyright The Tintmill authors. All rights reserved.

#include "Host/Ui/KeyNames.h"

#include "Host/Console/Console.h"
#include "InputCoreTypes.h"

#include <gtest/gtest.h>

using namespace TintmillHost;

namespace
{
std::string ComplaintAbout(const std::string& Text)
{
	try
	{
		ParseKeys(Text);
	}
	catch (const FCommandError& Error)
	{
		return Error.what();
	}
	return {};
}

TEST(KeyNames, ANameMeansItsKey)
{
	EXPECT_EQ(ParseKeys("Escape").Key, EKeys::Escape);
}

TEST(KeyNames, TheirCaseDoesNotMatter)
{
	EXPECT_EQ(ParseKeys("pageDOWN").Key, EKeys::PageDown);
}

TEST(KeyNames, ADigitMeansItsKey)
{
	EXPECT_EQ(ParseKeys("4").Key, EKeys::Four);
}

TEST(KeyNames, ModifiersStandBeforeThem)
{
	const FInputChord Chord = ParseKeys("Ctrl+Shift+A");
	EXPECT_EQ(Chord, FInputChord(EKeys::A, true, true, false, false));
}

TEST(KeyNames, AnUnknownKeyIsNamedInTheComplaint)
{
	EXPECT_EQ(ComplaintAbout("Hyper").substr(0, 27), "There is no key 'Hyper': th");
}

TEST(KeyNames, AnUnknownModifierIsNamedInTheComplaint)
{
	EXPECT_EQ(ComplaintAbout("Meta+A"), "'meta' in 'Meta+A' is no key that is held: there are Ctrl, Shift, Alt and Cmd.");
}
}
