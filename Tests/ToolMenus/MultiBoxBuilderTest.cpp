// Copyright The Tintmill authors. All rights reserved.

#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Support/MenuUser.h"
#include "Widgets/SNullWidget.h"

namespace
{
/** "HSEW" letters of a builder's blocks: heading, separator, entry, widget. */
FString DescribeBlocks(FMenuBuilder& Builder)
{
	FString Text;
	for (const TSharedRef<const FMultiBlock>& Block : Builder.GetMultiBox()->GetBlocks())
	{
		switch (Block->GetType())
		{
		case EMultiBlockType::Heading:
			Text += TEXT("H");
			break;
		case EMultiBlockType::Separator:
			Text += TEXT("S");
			break;
		case EMultiBlockType::MenuEntry:
			Text += TEXT("E");
			break;
		case EMultiBlockType::Widget:
			Text += TEXT("W");
			break;
		default:
			Text += TEXT("?");
			break;
		}
	}
	return Text;
}

void AddEntry(FMenuBuilder& Builder, const FName Hook = NAME_None)
{
	Builder.AddMenuEntry(FText::FromString(TEXT("Entry")), FText(), FSlateIcon(), FUIAction(), Hook);
}

const FText Heading = FText::FromString(TEXT("Heading"));
}

TEST(FMenuBuilder, DrawsAHeadingOnceAnEntryFollows)
{
	FMenuBuilder Builder(true, nullptr);
	Builder.BeginSection("S", Heading);
	AddEntry(Builder);
	Builder.EndSection();
	EXPECT_TRUE(IsText(DescribeBlocks(Builder), TEXT("HE")));
}

TEST(FMenuBuilder, DrawsNoHeadingOfAnEmptySection)
{
	FMenuBuilder Builder(true, nullptr);
	Builder.BeginSection("S", Heading);
	Builder.EndSection();
	EXPECT_TRUE(IsText(DescribeBlocks(Builder), TEXT("")));
}

TEST(FMenuBuilder, DrawsNoHeadingWithoutText)
{
	FMenuBuilder Builder(true, nullptr);
	Builder.BeginSection("S");
	AddEntry(Builder);
	Builder.EndSection();
	EXPECT_TRUE(IsText(DescribeBlocks(Builder), TEXT("E")));
}

TEST(FMenuBuilder, DrawsALineBetweenSections)
{
	FMenuBuilder Builder(true, nullptr);
	for (int32 Index = 0; Index < 2; ++Index)
	{
		Builder.BeginSection("S", Heading);
		AddEntry(Builder);
		Builder.EndSection();
	}
	EXPECT_TRUE(IsText(DescribeBlocks(Builder), TEXT("HESHE")));
}

TEST(FMenuBuilder, AddsWidgets)
{
	FMenuBuilder Builder(true, nullptr);
	Builder.AddWidget(SNullWidget::NullWidget, FText::GetEmpty(), true);
	EXPECT_TRUE(IsText(DescribeBlocks(Builder), TEXT("W")));
}

TEST(FMenuBuilder, ASectionInASectionIsFatal)
{
	FMenuBuilder Builder(true, nullptr);
	Builder.BeginSection("S");
	EXPECT_DEATH(Builder.BeginSection("T"), "Did you forget to call EndSection");
}

TEST(FMenuBuilder, PopCommandListWithoutPushIsFatal)
{
	FMenuBuilder Builder(true, nullptr);
	EXPECT_DEATH(Builder.PopCommandList(), "CommandListStack.Num");
}

TEST(FMenuBuilder, RunsExtensionsBeforeAndAfterAnEntry)
{
	const TSharedRef<FExtender> Extender = MakeShared<FExtender>();
	const FMenuExtensionDelegate AddSeparator = FMenuExtensionDelegate::CreateLambda([](FMenuBuilder& In) { In.AddMenuSeparator(); });
	Extender->AddMenuExtension("Hook", EExtensionHook::Before, nullptr, AddSeparator);
	Extender->AddMenuExtension("Hook", EExtensionHook::After, nullptr, AddSeparator);
	FMenuBuilder Builder(true, nullptr, Extender);
	AddEntry(Builder, "Hook");
	EXPECT_TRUE(IsText(DescribeBlocks(Builder), TEXT("SES")));
}

TEST(FMenuBuilder, RunsExtensionsFirstInASection)
{
	const TSharedRef<FExtender> Extender = MakeShared<FExtender>();
	Extender->AddMenuExtension("S", EExtensionHook::First, nullptr,
		FMenuExtensionDelegate::CreateLambda([](FMenuBuilder& In) { In.AddWidget(SNullWidget::NullWidget, FText()); }));
	FMenuBuilder Builder(true, nullptr, Extender);
	Builder.BeginSection("S", Heading);
	AddEntry(Builder);
	Builder.EndSection();
	EXPECT_TRUE(IsText(DescribeBlocks(Builder), TEXT("HWE")));
}

TEST(FExtender, RunsNoExtensionThatWasRemoved)
{
	const TSharedRef<FExtender> Extender = MakeShared<FExtender>();
	Extender->RemoveExtension(Extender->AddMenuExtension(
		"Hook", EExtensionHook::Before, nullptr, FMenuExtensionDelegate::CreateLambda([](FMenuBuilder& In) { In.AddMenuSeparator(); })));
	FMenuBuilder Builder(true, nullptr, Extender);
	AddEntry(Builder, "Hook");
	EXPECT_TRUE(IsText(DescribeBlocks(Builder), TEXT("E")));
}

TEST(FExtender, CombineOfNothingIsNull)
{
	EXPECT_FALSE(FExtender::Combine(TArray<TSharedPtr<FExtender>>()).IsValid());
}
