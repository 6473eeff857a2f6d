// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Input/SEditableText.h"
#include "Slate/SlateFixture.h"
#include "StandIn/Clipboard.h"
#include "Widgets/Input/SSearchBox.h"
#include "Widgets/SBoxPanel.h"

namespace
{
class FTextInput : public FSlateFixture
{
protected:
	void SetUp() override
	{
		FSlateFixture::SetUp();
		SAssignNew(Edit, SEditableText)
			.Text(FText::FromString(TEXT("one two")))
			.OnTextChanged_Lambda([this](const FText& Text) { Notes.push_back("changed " + ToStd(Text.ToString())); })
			.OnTextCommitted_Lambda([this](const FText& Text, ETextCommit::Type Type) {
				Notes.push_back("committed " + ToStd(Text.ToString()) + " " + std::to_string(Type));
			});
		Show(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Edit.ToSharedRef()]
			+ SVerticalBox::Slot()[SNew(STestBox).Focusable(true)]);
		App().SetKeyboardFocus(Edit);
		TakeNotes();
	}

	std::string GetText() const { return ToStd(Edit->GetText().ToString()); }

	TSharedPtr<SEditableText> Edit;
};
}

TEST_F(FTextInput, GoesToTheCaretAtTheEnd)
{
	StandIn::TypeText(TEXT("!?"));
	EXPECT_EQ("one two!?", GetText());
	EXPECT_EQ((FNotes{"changed one two!", "changed one two!?"}), TakeNotes());
}

TEST_F(FTextInput, GoesToWhereTheCaretWasMoved)
{
	StandIn::PressKey(EKeys::Home);
	StandIn::TypeText(TEXT("a"));
	StandIn::PressKey(EKeys::Right);
	StandIn::TypeText(TEXT("b"));
	EXPECT_EQ("aobne two", GetText());
}

TEST_F(FTextInput, ReplacesTheSelection)
{
	StandIn::PressKey(EKeys::Left, true, true);
	EXPECT_EQ("two", ToStd(Edit->GetSelectedText().ToString()));
	StandIn::TypeText(TEXT("x"));
	EXPECT_EQ("one x", GetText());
}

TEST_F(FTextInput, DeletesBackwardsAndForwards)
{
	StandIn::PressKey(EKeys::BackSpace);
	EXPECT_EQ("one tw", GetText());
	StandIn::PressKey(EKeys::Home);
	StandIn::PressKey(EKeys::Delete);
	EXPECT_EQ("ne tw", GetText());
	StandIn::PressKey(EKeys::BackSpace);
	EXPECT_EQ("ne tw", GetText());
}

TEST_F(FTextInput, DeletesAWholeEmojiOrMarkedLetterAtOnce)
{
	StandIn::TypeText(TEXT("\U0001F600"));
	EXPECT_EQ("one two\xF0\x9F\x98\x80", GetText());
	StandIn::PressKey(EKeys::BackSpace);
	EXPECT_EQ("one two", GetText());
	StandIn::TypeText(TEXT("e\u0301"));
	StandIn::PressKey(EKeys::BackSpace);
	EXPECT_EQ("one two", GetText());
}

TEST_F(FTextInput, IgnoresControlCharacters)
{
	StandIn::TypeText(TEXT("\b\t\r"));
	EXPECT_EQ("one two", GetText());
}

TEST_F(FTextInput, CommitsAtEnterAndLetsTheFocusGo)
{
	StandIn::PressKey(EKeys::Enter);
	const FNotes Taken = TakeNotes();
	ASSERT_FALSE(Taken.empty());
	EXPECT_EQ("committed one two " + std::to_string(ETextCommit::OnEnter), Taken[0]);
	EXPECT_FALSE(Edit->HasKeyboardFocus());
}

TEST_F(FTextInput, CommitsWhenTheFocusGoesElsewhere)
{
	StandIn::TypeText(TEXT("!"));
	TakeNotes();
	StandIn::ClickAt(FVector2D(200, 200));
	EXPECT_EQ((FNotes{"committed one two! " + std::to_string(ETextCommit::OnUserMovedFocus)}), TakeNotes());
}

TEST_F(FTextInput, CopiesCutsAndPastes)
{
	StandIn::PressKey(EKeys::A, false, true);
	StandIn::PressKey(EKeys::C, false, true);
	EXPECT_EQ("one two", ToStd(StandIn::GetClipboardText()));
	StandIn::PressKey(EKeys::X, false, true);
	EXPECT_EQ("", GetText());
	StandIn::PressKey(EKeys::V, false, true);
	StandIn::PressKey(EKeys::V, false, true);
	EXPECT_EQ("one twoone two", GetText());
}

TEST_F(FTextInput, PastesTheFirstLineOnly)
{
	StandIn::SetClipboardText(TEXT("first\nsecond"));
	StandIn::PressKey(EKeys::A, false, true);
	StandIn::PressKey(EKeys::V, false, true);
	EXPECT_EQ("first", GetText());
}

TEST_F(FTextInput, PutsTheCaretWhereTheMousePresses)
{
	StandIn::MoveMouse(FVector2D(13, 8));
	StandIn::PressMouse();
	EXPECT_EQ(2, Edit->GetCaretPosition());
	StandIn::MoveMouse(FVector2D(25, 8));
	EXPECT_EQ("e ", ToStd(Edit->GetSelectedText().ToString()));
	StandIn::ReleaseMouse();
	EXPECT_FALSE(App().HasAnyMouseCaptor());
}

TEST_F(FTextInput, SelectsAWordByADoubleClick)
{
	StandIn::DoubleClickAt(FVector2D(30, 8));
	EXPECT_EQ("two", ToStd(Edit->GetSelectedText().ToString()));
}

TEST_F(FTextInput, DoesNotChangeAReadOnlyText)
{
	const TSharedRef<SEditableText> Fixed = SNew(SEditableText).Text(FText::FromString(TEXT("fixed"))).IsReadOnly(true);
	Window->SetContent(Fixed);
	StandIn::AdvanceTime(0.0f);
	App().SetKeyboardFocus(Fixed);
	StandIn::TypeText(TEXT("x"));
	StandIn::PressKey(EKeys::BackSpace);
	StandIn::PressKey(EKeys::V, false, true);
	EXPECT_EQ("fixed", ToStd(Fixed->GetText().ToString()));
}

TEST_F(FTextInput, FollowsAPolledTextOnlyWhileItIsNotEdited)
{
	FString Source(TEXT("polled"));
	const TSharedRef<SEditableText> Polled = SNew(SEditableText).Text_Lambda([&Source]() { return FText::FromString(Source); });
	Window->SetContent(Polled);
	Source = TEXT("new");
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ("new", ToStd(Polled->GetText().ToString()));
	App().SetKeyboardFocus(Polled);
	StandIn::TypeText(TEXT("er"));
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ("newer", ToStd(Polled->GetText().ToString()));
	App().ClearKeyboardFocus();
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ("new", ToStd(Polled->GetText().ToString()));
}

TEST_F(FTextInput, ShowsTheHintWhileTheTextIsEmpty)
{
	const TSharedRef<SEditableText> Empty = SNew(SEditableText).HintText(FText::FromString(TEXT("type here")));
	Window->SetContent(Empty);
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ((FNotes{"type here"}), GetPaintedTexts(Window.ToSharedRef()));
	App().SetKeyboardFocus(Empty);
	StandIn::TypeText(TEXT("a"));
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ((FNotes{"a"}), GetPaintedTexts(Window.ToSharedRef()));
}

TEST_F(FTextInput, KeepsTheCaretOfALongTextInSight)
{
	StandIn::TypeText(TEXT("0123456789012345678901234567890123456789012345678901234567890123456789012345678901234567890123456789"));
	StandIn::AdvanceTime(0.0f);
	const TArray<FSlateDrawElement>& Elements = Window->GetElementList().GetElements();
	EXPECT_LE(Elements.Last().GetRect().Right, 400.5f);
	EXPECT_GE(Elements.Last().GetRect().Left, 0.0f);
}

namespace
{
class FSearch : public FSlateFixture
{
protected:
	void SetUp() override
	{
		FSlateFixture::SetUp();
		SAssignNew(Search, SSearchBox)
			.OnTextChanged_Lambda([this](const FText& Text) { Notes.push_back("changed " + ToStd(Text.ToString())); })
			.OnTextCommitted_Lambda([this](const FText&, ETextCommit::Type Type) { Notes.push_back("committed " + std::to_string(Type)); });
		Show(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Search.ToSharedRef()]);
	}

	TSharedPtr<SSearchBox> Search;
};
}

TEST_F(FSearch, TellsEveryChange)
{
	App().SetKeyboardFocus(Search);
	EXPECT_TRUE(Search->HasKeyboardFocus());
	StandIn::TypeText(TEXT("ab"));
	EXPECT_EQ((FNotes{"changed a", "changed ab"}), TakeNotes());
}

TEST_F(FSearch, IsEmptiedByItsCross)
{
	App().SetKeyboardFocus(Search);
	StandIn::TypeText(TEXT("ab"));
	StandIn::AdvanceTime(0.0f);
	TakeNotes();
	const TSharedPtr<SWidget> Cross = StandIn::FindWidgetOfType(Search.ToSharedRef(), FName(TEXT("SButton")));
	ASSERT_TRUE(Cross.IsValid());
	StandIn::Click(Cross.ToSharedRef());
	const FNotes Taken = TakeNotes();
	EXPECT_NE(Taken.end(), std::find(Taken.begin(), Taken.end(), "changed "));
	EXPECT_NE(Taken.end(), std::find(Taken.begin(), Taken.end(), "committed " + std::to_string(ETextCommit::OnCleared)));
	EXPECT_TRUE(Search->GetText().IsEmpty());
}

TEST_F(FSearch, TakesTheFocusByAClickAndSelectsItsText)
{
	Search->SetText(FText::FromString(TEXT("abc")));
	StandIn::AdvanceTime(0.0f);
	StandIn::ClickAt(FVector2D(20, 10));
	EXPECT_TRUE(Search->HasKeyboardFocus());
	EXPECT_TRUE(Search->AnyTextSelected());
	StandIn::TypeText(TEXT("x"));
	EXPECT_EQ("x", ToStd(Search->GetText().ToString()));
}

TEST_F(FSearch, LeavesEscapeToItsMenuWhenThereIsNothingToRevert)
{
	App().SetKeyboardFocus(Search);
	EXPECT_FALSE(StandIn::PressKey(EKeys::Escape));
	StandIn::TypeText(TEXT("a"));
	EXPECT_TRUE(StandIn::PressKey(EKeys::Escape));
	EXPECT_TRUE(Search->GetText().IsEmpty());
}
