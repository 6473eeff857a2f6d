// Copyright The Tintmill authors. All rights reserved.

#include "Host/HostRun.h"

#include <gtest/gtest.h>

// Look assets as a person uses them in the real program: opened, made, and refused.

namespace
{
class FAssetCommands : public testing::Test
{
protected:
	/** Says whether the output of a run that ended well holds a text. */
	testing::AssertionResult Prints(const std::string& Commands, const std::string& Text) const
	{
		const FHostRun::FResult Result = Host.Execute(Commands);
		return Result.Code == 0 && Result.Output.find(Text) != std::string::npos ? testing::AssertionSuccess()
																				 : testing::AssertionFailure() << Result.Output;
	}

	FHostRun Host;
};

TEST_F(FAssetCommands, ALookIsDescribedAsItsToolTipDoes)
{
	EXPECT_TRUE(Prints("describe-look TealOrange", "Tintmill: Double click to open up the tintmill builder."));
}

TEST_F(FAssetCommands, ADoubleClickOpensTheBuilderOnTheLook)
{
	EXPECT_TRUE(Prints("open-look TealOrange; builders", "/Game/Looks/TealOrange.TealOrange: "));
}

TEST_F(FAssetCommands, ALookOpenedTwiceHasOneWindow)
{
	const std::string Output = Host.Execute("open-look TealOrange; open-look TealOrange; builders").Output;
	const size_t First = Output.find("TealOrange.TealOrange: ");
	EXPECT_TRUE(First != std::string::npos && Output.find("TealOrange.TealOrange: ", First + 1) == std::string::npos) << Output;
}

TEST_F(FAssetCommands, TheBuilderTellsThePixelUnderTheMouseBeforeAndAfter)
{
	EXPECT_TRUE(Prints("open-look TealOrange; hover-builder TealOrange 0.5 0.5", "before "));
}

TEST_F(FAssetCommands, ANewLookComesFromTheMenuForMiscellaneousAssets)
{
	EXPECT_TRUE(Prints("new-look Fresh", "Miscellaneous > Tintmill"));
}

TEST_F(FAssetCommands, ANewLookIsAFileInTheProject)
{
	Host.Execute("new-look Fresh");
	EXPECT_TRUE(std::filesystem::exists(Host.Path("Project/Content/Looks/Fresh.cube")));
}

TEST_F(FAssetCommands, TheBuilderOpensOnANewLook)
{
	EXPECT_TRUE(Prints("new-look Fresh; builders", "/Game/Looks/Fresh.Fresh: "));
}

TEST_F(FAssetCommands, ANameThatIsTakenIsRefused)
{
	EXPECT_EQ(Host.Execute("new-look TealOrange").Code, 2);
}

TEST_F(FAssetCommands, AFolderThatIsNotThereIsNamed)
{
	const FHostRun::FResult Result = Host.Execute("new-look Fresh /Game/Missing");
	EXPECT_NE(Result.Output.find("Missing/Fresh.cube cannot be written ("), std::string::npos) << Result.Output;
}

TEST_F(FAssetCommands, AnUnknownLookIsRefused)
{
	EXPECT_EQ(Host.Execute("open-look Nothing").Code, 2);
}
}
