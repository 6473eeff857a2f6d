// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/SViewport.h"
#include "Slate/SlateFixture.h"

namespace
{
/** Notes what it is told. */
class FNotingViewport : public ISlateViewport
{
public:
	explicit FNotingViewport(FNotes& InNotes)
		: Notes(InNotes)
	{}
	FIntPoint GetSize() const override { return FIntPoint(4, 3); }
	bool RequiresVsync() const override { return false; }
	void Tick(const FGeometry& Geometry, double, float) override { Size = Geometry.GetLocalSize(); }
	FReply OnMouseButtonDown(const FGeometry&, const FPointerEvent&) override
	{
		Notes.push_back("down");
		return FReply::Handled();
	}
	FReply OnKeyDown(const FGeometry&, const FKeyEvent&) override
	{
		Notes.push_back("key");
		return FReply::Handled();
	}
	void OnMouseEnter(const FGeometry&, const FPointerEvent&) override { Notes.push_back("enter"); }
	void OnMouseLeave(const FPointerEvent&) override { Notes.push_back("leave"); }
	void OnFocusLost(const FFocusEvent&) override { Notes.push_back("blur"); }

	FNotes& Notes;
	FVector2D Size = FVector2D(0, 0);
};

class FViewports : public FSlateFixture
{
protected:
	void SetUp() override
	{
		FSlateFixture::SetUp();
		Source = MakeShareable(new FNotingViewport(Notes));
		SAssignNew(Viewport, SViewport)[SNew(STestBox).Name("overlay").Visibility(EVisibility::HitTestInvisible)];
		Viewport->SetViewportInterface(Source.ToSharedRef());
		Show(Viewport.ToSharedRef());
	}

	TSharedPtr<FNotingViewport> Source;
	TSharedPtr<SViewport> Viewport;
};
}

TEST_F(FViewports, DrawTheirSourceBelowTheirContent)
{
	const TArray<FSlateDrawElement>& Elements = Window->GetElementList().GetElements();
	ASSERT_EQ(3, Elements.Num());
	EXPECT_EQ(EElementType::ET_Viewport, Elements[1].GetElementType());
	EXPECT_TRUE(Elements[1].GetViewport() == Source);
	EXPECT_EQ(FSlateRect(0, 0, 400, 300), Elements[1].GetRect());
	EXPECT_EQ("overlay", ToStd(Elements[2].GetText()));
	EXPECT_LT(Elements[1].GetLayer(), Elements[2].GetLayer());
}

TEST_F(FViewports, TellTheirSourceItsSizeAtEveryTick)
{
	EXPECT_EQ(FVector2D(400, 300), Source->Size);
}

TEST_F(FViewports, PassTheirInputToTheirSource)
{
	StandIn::MoveMouse(FVector2D(50, 50));
	StandIn::PressMouse();
	StandIn::PressKey(EKeys::A);
	App().ProcessMouseLeft();
	App().ClearKeyboardFocus();
	EXPECT_EQ((FNotes{"enter", "down", "key", "leave", "blur"}), TakeNotes());
}

TEST_F(FViewports, DrawOnlyTheirContentWhenTheirSourceIsGone)
{
	Window->GetElementList().ResetElementList();
	Source.Reset();
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(2, Window->GetElementList().GetElements().Num());
}
