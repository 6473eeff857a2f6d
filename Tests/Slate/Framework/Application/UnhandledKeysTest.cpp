// Copyright The Tintmill authors. All rights reserved.

#include "Slate/SlateFixture.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/SNullWidget.h"

namespace
{
class FUnhandledKeysTest : public FSlateFixture
{
protected:
	/** Notes the keys that reach the handler, which takes them or not. */
	void SetHandler(bool bTakes)
	{
		App().SetUnhandledKeyDownEventHandler(FOnKeyEvent::CreateLambda([this, bTakes](const FKeyEvent& Event) {
			Notes.push_back(TCHAR_TO_UTF8(*Event.GetKey().ToString()));
			return bTakes ? FReply::Handled() : FReply::Unhandled();
		}));
	}
};
}

TEST_F(FUnhandledKeysTest, ReachTheHandlerWithoutAFocus)
{
	Show(SNullWidget::NullWidget);
	SetHandler(true);
	StandIn::PressKey(EKeys::F6);
	EXPECT_EQ(TakeNotes(), FNotes{"F6"});
}

TEST_F(FUnhandledKeysTest, AreHandledIfTheHandlerTakesThem)
{
	Show(SNullWidget::NullWidget);
	SetHandler(true);
	EXPECT_TRUE(App().ProcessKeyDownEvent(FKeyEvent(EKeys::F6, FModifierKeysState(), 0, false, 0, 0)));
}

TEST_F(FUnhandledKeysTest, AreNotHandledIfTheHandlerLeavesThem)
{
	Show(SNullWidget::NullWidget);
	SetHandler(false);
	EXPECT_FALSE(App().ProcessKeyDownEvent(FKeyEvent(EKeys::F6, FModifierKeysState(), 0, false, 0, 0)));
}

TEST_F(FUnhandledKeysTest, AreNotThoseThatAWidgetTakes)
{
	const TSharedRef<SEditableText> Text = SNew(SEditableText);
	Show(Text);
	App().SetKeyboardFocus(Text);
	SetHandler(true);
	StandIn::PressKey(EKeys::Home);
	EXPECT_EQ(TakeNotes(), FNotes{});
}
