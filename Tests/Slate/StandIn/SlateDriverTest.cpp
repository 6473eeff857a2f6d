// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/SlateDriver.h"
#include "Slate/SlateFixture.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
class FDriver : public FSlateFixture
{
protected:
	void SetUp() override
	{
		FSlateFixture::SetUp();
		Show(SNew(SVerticalBox)
			+ SVerticalBox::Slot().AutoHeight()[SNew(STextBlock).Text(FText::FromString(TEXT("Hidden"))).Visibility(EVisibility::Hidden)]
			+ SVerticalBox::Slot().AutoHeight()
				  [SNew(SButton).Tag(FName(TEXT("Press"))).Text(FText::FromString(TEXT("Press me"))).OnClicked_Lambda([this]() {
					  Notes.push_back("clicked");
					  return FReply::Handled();
				  })]);
	}
};
}

TEST_F(FDriver, FindsAShownTextAndClicksIt)
{
	const TSharedPtr<SWidget> Text = StandIn::FindTextOnDesktop(TEXT("Press me"));
	ASSERT_TRUE(Text.IsValid());
	StandIn::Click(Text.ToSharedRef());
	EXPECT_EQ((FNotes{"clicked"}), TakeNotes());
}

TEST_F(FDriver, DoesNotFindTextsThatAreNotShown)
{
	EXPECT_FALSE(StandIn::FindTextOnDesktop(TEXT("Hidden")).IsValid());
	EXPECT_FALSE(StandIn::FindTextOnDesktop(TEXT("")).IsValid());
	const TArray<FString> Texts = StandIn::CollectTexts(Window.ToSharedRef());
	ASSERT_EQ(1, Texts.Num());
	EXPECT_EQ("Press me", ToStd(Texts[0]));
}

TEST_F(FDriver, FindsWidgetsByTagAndType)
{
	const TSharedPtr<SWidget> ByTag = StandIn::FindTag(FName(TEXT("Press")));
	EXPECT_TRUE(ByTag.IsValid());
	EXPECT_TRUE(ByTag == StandIn::FindWidgetOfType(Window.ToSharedRef(), FName(TEXT("SButton"))));
}

TEST_F(FDriver, AdvancesTimeByExactlyWhatWasAsked)
{
	const double Before = App().GetCurrentTime();
	StandIn::AdvanceTime(0.25f);
	EXPECT_NEAR(0.25, App().GetCurrentTime() - Before, 1e-5);
}
