// Copyright The Tintmill authors. All rights reserved.

#include "Host/Commands/UiFixture.h"

// The commands for the content browser, in the real program.

namespace
{
class FBrowserCommands : public FUiFixture
{
protected:
	virtual void SetUp() override
	{
		FUiFixture::SetUp();
		WriteLook("Film/Blue", "0 0 0\n0 0 0\n0 0 0\n0 0 0\n0 0 1\n0 0 1\n0 0 1\n0 0 1\n");
		WriteLook("Film/Stock/Broken", "0 0 0\n");
		WriteLook("Film/Reversal/Slide", "0 0 0\n");
	}
};

TEST_F(FBrowserCommands, ListWhatTheRootShows)
{
	EXPECT_NE(Run("tiles").Output.find("  /Game\n    Film/\n    Green\n    Red\n"), std::string::npos);
}

TEST_F(FBrowserCommands, ShowAFolderByAClickInTheTree)
{
	EXPECT_NE(Run("click-folder /Game/Film; tiles").Output.find("  /Game/Film\n    Reversal/\n    Stock/\n    Blue\n"), std::string::npos);
}

TEST_F(FBrowserCommands, ExpandTheFoldersAboveTheOneThatIsClicked)
{
	ExpectDone("click-folder /Game/Film/Stock; expect visible Broken");
}

TEST_F(FBrowserCommands, CollapseAFolderByItsArrow)
{
	ExpectDone("click-folder /Game/Film/Stock; expect visible Reversal; toggle-folder /Game/Film; expect absent Reversal");
}

TEST_F(FBrowserCommands, NameAFolderThatIsNotThere)
{
	ExpectComplaint("click-folder /Game/Nothing", "There is no folder '/Game/Nothing'");
}

TEST_F(FBrowserCommands, OpenTheMenuOfNewAssetsBesideTheTiles)
{
	ExpectDone("click-beside-tiles right; expect visible Miscellaneous");
}

TEST_F(FBrowserCommands, SayThatATileIsSelected)
{
	ExpectDone("click Red; expect-selected Red");
}

TEST_F(FBrowserCommands, SayThatATileIsNotSelected)
{
	ExpectComplaint("click Red; expect-selected Green", "The tile 'Green' was expected to be selected, and it is not.");
}

TEST_F(FBrowserCommands, SayThatATileBearsTheMarkOfABrokenFile)
{
	ExpectDone("click-folder /Game/Film/Stock; wait 0.2; expect-marked Broken");
}

TEST_F(FBrowserCommands, SayThatATileBearsNoMark)
{
	ExpectComplaint("wait 0.2; expect-marked Green", "The tile 'Green' was expected to be marked, and it is not.");
}

TEST_F(FBrowserCommands, SayThatSomethingIsNoTile)
{
	ExpectComplaint("expect-selected Lit", "'Lit' is no tile of the content browser.");
}
}
