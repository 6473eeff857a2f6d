// Copyright The Tintmill authors. All rights reserved.

#include "Tests/Host/HostRun.h"

#include <gtest/gtest.h>

// What a person can do beside plain clicks, in the real program.

namespace
{
class MouseCommands : public testing::Test
{
protected:
	void ExpectDone(const std::string& Commands) const
	{
		const FHostRun::FResult Result = Host.Execute(Commands);
		EXPECT_EQ(Result.Code, 0) << Result.Output;
	}

	void ExpectComplaint(const std::string& Commands, const std::string& Text) const
	{
		const FHostRun::FResult Result = Host.Execute(Commands);
		EXPECT_EQ(Result.Code, 2);
		EXPECT_NE(Result.Output.find(Text), std::string::npos) << Result.Output;
	}

	FHostRun Host;
};

TEST_F(MouseCommands, ASplitterIsDraggedByItsName)
{
	ExpectDone("window 1200 800; shot before.png; drag \"splitter 1\" 0 -120; hover-at 600 5; shot after.png; hover-at 600 5");
	EXPECT_FALSE(Host.ReadPicture("before.png").Pixels == Host.ReadPicture("after.png").Pixels);
}

TEST_F(MouseCommands, ADoubleClickOpensAFolder)
{
	ExpectDone("window 1200 800; double-click Looks; expect visible WarmPrint");
}

TEST_F(MouseCommands, TheRightButtonOpensAMenu)
{
	ExpectDone("window 1200 800; double-click Looks; right-click WarmPrint; expect menus 1");
}

TEST_F(MouseCommands, ACtrlClickSelectsOneMore)
{
	ExpectDone("window 1200 800; double-click Looks; click WarmPrint; click-with Ctrl CoolNight; expect visible \"6 items (2 selected)\"");
}

TEST_F(MouseCommands, ADragInAPaneMovesItsCamera)
{
	ExpectDone("window 1200 800; picture 1 before.png; drag-pane 1 80 20 left Alt; picture 1 after.png");
	EXPECT_FALSE(Host.ReadPicture("before.png").Pixels == Host.ReadPicture("after.png").Pixels);
}

TEST_F(MouseCommands, TheWheelOverAPaneMovesItsCamera)
{
	ExpectDone("window 1200 800; picture 1 before.png; scroll-pane 1 3; picture 1 after.png");
	EXPECT_FALSE(Host.ReadPicture("before.png").Pixels == Host.ReadPicture("after.png").Pixels);
}

TEST_F(MouseCommands, AClickAtAPlaceIsAClick)
{
	ExpectDone("window 1200 800; click-pane 3; click-at 900 250; expect active 1");
}

TEST_F(MouseCommands, AnUnknownButtonMakesAComplaint)
{
	ExpectComplaint("click-at 10 10 fourth", "There is no mouse button 'fourth'; there are left, right, middle.");
}

TEST_F(MouseCommands, AnUnknownModifierKeyMakesAComplaint)
{
	ExpectComplaint("click-with Hyper Lit", "There is no modifier key 'hyper'");
}

TEST_F(MouseCommands, ModifierKeysArePressedAsKeysToo)
{
	// The pane's own key is F alone, and it must not take Ctrl+Shift+F.
	ExpectDone("window 1200 800; click-pane 1; press Ctrl+Shift+F Ctrl+F; expect focused Search Content");
}

TEST_F(MouseCommands, ALookIsChosenInOneCommand)
{
	ExpectDone("choose-look 1 TealOrange; expect 1.look TealOrange; expect 1.enable on; expect menus 0; "
			   "choose-look 1 none; expect 1.look none; choose-look 1 CoolNight; expect 1.look CoolNight");
}

TEST_F(MouseCommands, WaitingEndsWhenWhatIsWaitedForIsThere)
{
	ExpectDone("window 1200 800; wait-for visible Lit");
	ExpectComplaint("window 1200 800; wait-for visible Nothing Here", "Nothing in sight is labeled 'Nothing Here'");
}

TEST_F(MouseCommands, CommandsGoOnAfterARestart)
{
	ExpectDone("choose-look 1 TealOrange; restart; expect 1.look TealOrange");
}
}
