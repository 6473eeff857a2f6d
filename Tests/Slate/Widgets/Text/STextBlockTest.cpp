// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Text/STextBlock.h"
#include "Slate/SlateFixture.h"
#include "StandIn/TextLines.h"
#include "Widgets/SBoxPanel.h"

namespace
{
FText MakeText(const TCHAR* Text)
{
	return FText::FromString(FString(Text));
}

FNotes ToNotes(const TArray<FString>& Lines)
{
	FNotes Converted;
	for (const FString& Line : Lines)
	{
		Converted.push_back(ToStd(Line));
	}
	return Converted;
}

// Six units a character.
FSlateFontInfo NinePoints()
{
	return FCoreStyle::GetDefaultFontStyle(FName(TEXT("Regular")), 9);
}

class FTextBlocks : public FSlateFixture
{};
}

TEST_F(FTextBlocks, AreAsLargeAsTheirText)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(MakeText(TEXT("Hello"))).Margin(FMargin(1, 2));
	Block->SlatePrepass(1.0f);
	EXPECT_EQ(FVector2D(32, 20), Block->GetDesiredSize());
}

TEST_F(FTextBlocks, FollowAPolledText)
{
	FText Text = MakeText(TEXT("a"));
	Show(SNew(STextBlock).Text_Lambda([&Text]() { return Text; }));
	EXPECT_EQ((FNotes{"a"}), GetPaintedTexts(Window.ToSharedRef()));
	Text = MakeText(TEXT("b"));
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ((FNotes{"b"}), GetPaintedTexts(Window.ToSharedRef()));
}

TEST_F(FTextBlocks, WrapAtAGivenWidth)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(MakeText(TEXT("one two three"))).WrapTextAt(45.0f);
	Show(Block);
	EXPECT_EQ((FNotes{"one two", "three"}), GetPaintedTexts(Window.ToSharedRef()));
	EXPECT_EQ(FVector2D(42, 32), Block->GetDesiredSize());
}

TEST_F(FTextBlocks, WrapAtTheirOwnWidthOneTickAfterTheyGotIt)
{
	const TSharedRef<STextBlock> Block =
		SNew(STextBlock)
			.Text(MakeText(TEXT("aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa bbbbbbbbbbbbbbbbbbbbbbbbb")))
			.AutoWrapText(true);
	Show(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Block]);
	StandIn::AdvanceTime(0.0f);
	EXPECT_EQ(32.0f, Block->GetDesiredSize().Y);
}

TEST_F(FTextBlocks, EndInAnEllipsisWhereAskedTo)
{
	Show(SNew(SVerticalBox)
		+ SVerticalBox::Slot()
			  .AutoHeight()
			  .HAlign(HAlign_Left)
			  .Padding(0)[SNew(STextBlock).Text(MakeText(TEXT("short"))).AddMetaData(MakeShareable(new StandIn::FEllipsisMetaData()))]
		+ SVerticalBox::Slot()
			  .AutoHeight()[SNew(STextBlock)
								.Text(MakeText(TEXT("0123456789012345678901234567890123456789012345678901234567890123456789")))
								.AddMetaData(MakeShareable(new StandIn::FEllipsisMetaData()))]);
	EXPECT_EQ((FNotes{"short", "01234567890123456789012345678901234567890123456789012345678901234\xE2\x80\xA6"}),
		GetPaintedTexts(Window.ToSharedRef()));
}

TEST_F(FTextBlocks, UseTheForegroundColourInForce)
{
	Show(SNew(STextBlock).Text(MakeText(TEXT("a"))));
	EXPECT_EQ(FLinearColor(0.72f, 0.72f, 0.72f, 1.0f), Window->GetElementList().GetElements().Last().GetTint());
}

TEST_F(FTextBlocks, DrawTheirShadowBelowTheirText)
{
	Show(SNew(STextBlock).Text(MakeText(TEXT("a"))).ShadowOffset(FVector2D(1, 1)).ShadowColorAndOpacity(FLinearColor::Black));
	const TArray<FSlateDrawElement>& Elements = Window->GetElementList().GetElements();
	ASSERT_EQ(3, Elements.Num());
	EXPECT_EQ(FVector2D(1, 1), Elements[1].GetPaintGeometry().DrawPosition);
	EXPECT_LT(Elements[1].GetLayer(), Elements[2].GetLayer());
}

TEST_F(FTextBlocks, PlaceTheirLinesByJustification)
{
	Show(SNew(STextBlock).Text(MakeText(TEXT("ab"))).Justification(ETextJustify::Right));
	EXPECT_EQ(FSlateRect(388, 0, 400, 16), Window->GetElementList().GetElements().Last().GetRect());
}

TEST(BreakLines, BreaksAtLineBreaksOfEitherKind)
{
	EXPECT_EQ((FNotes{"a", "b", "", "c"}), ToNotes(StandIn::BreakLines(TEXT("a\r\nb\n\nc"), NinePoints(), 0.0f)));
}

TEST(BreakLines, BreaksAtSpacesAndDropsThem)
{
	EXPECT_EQ((FNotes{"aa bb", "cc"}), ToNotes(StandIn::BreakLines(TEXT("aa bb  cc"), NinePoints(), 36.0f)));
}

TEST(BreakLines, CutsAWordWiderThanALine)
{
	EXPECT_EQ((FNotes{"abcd", "efgh", "ij"}), ToNotes(StandIn::BreakLines(TEXT("abcdefghij"), NinePoints(), 24.0f)));
}

TEST(BreakLines, EndsEvenWhereNotOneCharacterFits)
{
	EXPECT_EQ((FNotes{"a", "b"}), ToNotes(StandIn::BreakLines(TEXT("ab"), NinePoints(), 1.0f)));
}

TEST(BreakLines, KeepsMarksAndPairsWithTheirBase)
{
	EXPECT_EQ((FNotes{"e\xCC\x81", "e\xCC\x81"}), ToNotes(StandIn::BreakLines(TEXT("e\u0301e\u0301"), NinePoints(), 7.0f)));
	EXPECT_EQ(
		(FNotes{"\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80"}), ToNotes(StandIn::BreakLines(TEXT("\U0001F600\U0001F600"), NinePoints(), 13.0f)));
}

TEST(CutWithEllipsis, CutsRightToLeftTextAtItsLogicalEnd)
{
	const FString Hebrew(TEXT("\u05E9\u05DC\u05D5\u05DD \u05E2\u05D5\u05DC\u05DD"));
	EXPECT_EQ("\xD7\xA9\xD7\x9C\xE2\x80\xA6", ToStd(StandIn::CutWithEllipsis(Hebrew, NinePoints(), 18.0f)));
}

TEST(CutWithEllipsis, ReturnsALineThatFitsAsItIs)
{
	EXPECT_EQ("abc", ToStd(StandIn::CutWithEllipsis(TEXT("abc"), NinePoints(), 18.0f)));
}
