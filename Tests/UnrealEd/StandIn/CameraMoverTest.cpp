// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/CameraMover.h"

#include "Support/EditorFixture.h"

/** The panes of an editor and a mover that notes what it is asked. */
class FCameraMoverTest : public FEditorFixture
{
protected:
	virtual void SetUp() override
	{
		FEditorFixture::SetUp();
		StandIn::SetCameraMover([this](FEditorViewportClient& Client, FViewport&, const FKey& Key, float Delta) {
			Asked = &Client;
			Notes += ToText(Key.ToString()) + " " + std::to_string(static_cast<int>(Delta)) + ";";
			return bMoves;
		});
	}

	virtual void TearDown() override
	{
		StandIn::SetCameraMover(StandIn::FCameraMover());
		FEditorFixture::TearDown();
	}

	FLevelEditorViewportClient& Client() { return GetPane(1)->GetLevelViewportClient(); }
	FViewport* Viewport() { return GetPane(1)->GetActiveViewport(); }

	std::string Notes;
	FEditorViewportClient* Asked = nullptr;
	bool bMoves = true;
};

TEST_F(FCameraMoverTest, MovesByAnAxis)
{
	EXPECT_TRUE(Client().InputAxis(Viewport(), 0, EKeys::MouseX, 3.0f, 0.0f));
	EXPECT_EQ(Notes, "MouseX 3;");
}

TEST_F(FCameraMoverTest, MovesTheClientThatGotTheInput)
{
	Client().InputAxis(Viewport(), 0, EKeys::MouseX, 3.0f, 0.0f);
	EXPECT_EQ(Asked, &Client());
}

TEST_F(FCameraMoverTest, IsToldOfAPressedKey)
{
	EXPECT_TRUE(Client().InputKey(Viewport(), 0, EKeys::F, IE_Pressed));
	EXPECT_EQ(Notes, "F 1;");
}

TEST_F(FCameraMoverTest, IsNotToldOfAReleasedKey)
{
	EXPECT_FALSE(Client().InputKey(Viewport(), 0, EKeys::F, IE_Released));
	EXPECT_EQ(Notes, "");
}

TEST_F(FCameraMoverTest, LeavesTheKeyToOthersWhenNothingMoved)
{
	bMoves = false;
	EXPECT_FALSE(Client().InputKey(Viewport(), 0, EKeys::F, IE_Pressed));
}

TEST_F(FCameraMoverTest, AsksForAPictureWhenItMoved)
{
	Client().bNeedsRedraw = false;
	Client().InputAxis(Viewport(), 0, EKeys::MouseX, 3.0f, 0.0f);
	EXPECT_TRUE(Client().bNeedsRedraw);
}

TEST_F(FCameraMoverTest, AsksForNoPictureWhenNothingMoved)
{
	bMoves = false;
	Client().bNeedsRedraw = false;
	Client().InputAxis(Viewport(), 0, EKeys::MouseX, 3.0f, 0.0f);
	EXPECT_FALSE(Client().bNeedsRedraw);
}

TEST_F(FCameraMoverTest, WithoutAMoverAxesAreForOthers)
{
	StandIn::SetCameraMover(StandIn::FCameraMover());
	EXPECT_FALSE(Client().InputAxis(Viewport(), 0, EKeys::MouseX, 3.0f, 0.0f));
}

TEST_F(FCameraMoverTest, APressedButtonStillMakesItsClientTheOneWorkedIn)
{
	bMoves = false;
	Client().InputKey(Viewport(), 0, EKeys::LeftMouseButton, IE_Pressed);
	EXPECT_EQ(GCurrentLevelEditingViewportClient, &Client());
}
