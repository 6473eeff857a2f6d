// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Input/SButton.h"
#include "Slate/SlateFixture.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/Input/SSlider.h"
#include "Widgets/SBoxPanel.h"

namespace
{
class FButtons : public FSlateFixture
{
protected:
	/** Shows a widget in the upper left corner. */
	void ShowCorner(const TSharedRef<SWidget>& Widget)
	{
		Show(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Left)[Widget]);
	}

	TSharedRef<SButton> ShowButton(EButtonClickMethod::Type Method = EButtonClickMethod::DownAndUp)
	{
		const TSharedRef<SButton> Button = SNew(SButton).ClickMethod(Method).OnClicked_Lambda([this]() {
			++NumClicks;
			return FReply::Handled();
		})[MakeBox(60, 20)];
		ShowCorner(Button);
		return Button;
	}

	int32 NumClicks = 0;
};
}

TEST_F(FButtons, ClickByAPressAndAReleaseOnThem)
{
	const TSharedRef<SButton> Button = ShowButton();
	StandIn::MoveMouse(FVector2D(10, 10));
	StandIn::PressMouse();
	EXPECT_TRUE(Button->IsPressed());
	EXPECT_EQ(0, NumClicks);
	StandIn::ReleaseMouse();
	EXPECT_FALSE(Button->IsPressed());
	EXPECT_EQ(1, NumClicks);
}

TEST_F(FButtons, DoNotClickByAReleaseElsewhere)
{
	ShowButton();
	StandIn::MoveMouse(FVector2D(10, 10));
	StandIn::PressMouse();
	StandIn::MoveMouse(FVector2D(300, 200));
	StandIn::ReleaseMouse();
	EXPECT_EQ(0, NumClicks);
	EXPECT_FALSE(App().HasAnyMouseCaptor());
}

TEST_F(FButtons, DoNotClickByAReleaseWithoutAPress)
{
	ShowButton();
	StandIn::MoveMouse(FVector2D(300, 200));
	StandIn::PressMouse();
	StandIn::MoveMouse(FVector2D(10, 10));
	StandIn::ReleaseMouse();
	EXPECT_EQ(0, NumClicks);
}

TEST_F(FButtons, ClickAtOnceWhenAPressIsEnough)
{
	ShowButton(EButtonClickMethod::MouseDown);
	StandIn::MoveMouse(FVector2D(10, 10));
	StandIn::PressMouse();
	EXPECT_EQ(1, NumClicks);
	StandIn::ReleaseMouse();
	EXPECT_EQ(1, NumClicks);
}

TEST_F(FButtons, IgnoreOtherMouseButtons)
{
	ShowButton();
	StandIn::ClickAt(FVector2D(10, 10), EKeys::RightMouseButton);
	EXPECT_EQ(0, NumClicks);
}

TEST_F(FButtons, IgnoreClicksWhileDisabled)
{
	ShowButton()->SetEnabled(false);
	StandIn::AdvanceTime(0.0f);
	StandIn::ClickAt(FVector2D(10, 10));
	EXPECT_EQ(0, NumClicks);
}

TEST_F(FButtons, ClickByEnterAndSpaceWithTheFocus)
{
	App().SetKeyboardFocus(ShowButton());
	StandIn::PressKey(EKeys::Enter);
	StandIn::PressKey(EKeys::SpaceBar);
	EXPECT_EQ(2, NumClicks);
}

TEST_F(FButtons, ShowTheBrushOfTheirState)
{
	const TSharedRef<SButton> Button = ShowButton();
	const FButtonStyle& Style = FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("Button");
	const auto GetTint = [this]() { return Window->GetElementList().GetElements()[1].GetTint(); };
	EXPECT_EQ(Style.Normal.TintColor.GetSpecifiedColor(), GetTint());
	StandIn::MoveMouse(FVector2D(10, 10));
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(Style.Hovered.TintColor.GetSpecifiedColor(), GetTint());
	StandIn::PressMouse();
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(Style.Pressed.TintColor.GetSpecifiedColor(), GetTint());
}

TEST_F(FButtons, AreAsLargeAsTheirTextAndPaddings)
{
	const TSharedRef<SButton> Button = SNew(SButton).Text(FText::FromString(TEXT("Okay"))).ContentPadding(FMargin(10, 5));
	ShowCorner(Button);
	EXPECT_EQ(FVector2D(24 + 20 + 4, 16 + 10 + 4), Button->GetDesiredSize());
}

TEST_F(FButtons, TellWhenTheMouseComesAndGoes)
{
	ShowCorner(SNew(SButton).OnHovered_Lambda([this]() { Notes.push_back("hovered"); }).OnUnhovered_Lambda([this]() {
		Notes.push_back("unhovered");
	})[MakeBox(60, 20)]);
	StandIn::MoveMouse(FVector2D(10, 10));
	StandIn::MoveMouse(FVector2D(300, 200));
	EXPECT_EQ((FNotes{"hovered", "unhovered"}), TakeNotes());
}

TEST_F(FButtons, CheckAndUncheckAtClicks)
{
	const TSharedRef<SCheckBox> Box = SNew(SCheckBox)[MakeBox(60, 20)];
	ShowCorner(Box);
	StandIn::ClickAt(FVector2D(40, 10));
	EXPECT_TRUE(Box->IsChecked());
	StandIn::ClickAt(FVector2D(5, 10));
	EXPECT_FALSE(Box->IsChecked());
}

TEST_F(FButtons, LeaveAPolledCheckToItsOwner)
{
	ECheckBoxState State = ECheckBoxState::Unchecked;
	std::vector<ECheckBoxState> Wanted;
	const TSharedRef<SCheckBox> Box =
		SNew(SCheckBox).IsChecked_Lambda([&State]() { return State; }).OnCheckStateChanged_Lambda([&Wanted](ECheckBoxState New) {
			Wanted.push_back(New);
		});
	ShowCorner(Box);
	Box->ToggleCheckedState();
	EXPECT_FALSE(Box->IsChecked());
	State = ECheckBoxState::Undetermined;
	Box->ToggleCheckedState();
	EXPECT_EQ((std::vector<ECheckBoxState>{ECheckBoxState::Checked, ECheckBoxState::Unchecked}), Wanted);
}

TEST_F(FButtons, OpenAComboMenuByAPressAndCloseItByTheNext)
{
	const TSharedRef<SComboButton> Combo =
		SNew(SComboButton).ButtonContent()[MakeBox(60, 20)].OnGetMenuContent_Lambda([]() -> TSharedRef<SWidget> {
			return MakeBox(50, 40);
		});
	ShowCorner(Combo);
	StandIn::ClickAt(FVector2D(10, 10));
	EXPECT_TRUE(Combo->IsOpen());
	StandIn::ClickAt(FVector2D(10, 10));
	EXPECT_FALSE(Combo->IsOpen());
	StandIn::ClickAt(FVector2D(10, 10));
	EXPECT_TRUE(Combo->IsOpen());
}

TEST_F(FButtons, SlideToWhereTheyAreDragged)
{
	float Value = 0.5f;
	const TSharedRef<SSlider> Slider =
		SNew(SSlider).MinValue(0.0f).MaxValue(10.0f).Value_Lambda([&Value]() { return Value; }).OnValueChanged_Lambda([&Value](float New) {
			Value = New;
		});
	Show(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Slider]);
	StandIn::MoveMouse(FVector2D(200, 5));
	StandIn::PressMouse();
	EXPECT_NEAR(5.0f, Value, 0.01f);
	StandIn::MoveMouse(FVector2D(1000, 5));
	EXPECT_EQ(10.0f, Value);
	StandIn::ReleaseMouse();
	StandIn::MoveMouse(FVector2D(0, 5));
	EXPECT_EQ(10.0f, Value);
}
