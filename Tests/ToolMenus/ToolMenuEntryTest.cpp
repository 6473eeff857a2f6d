// Copyright The Tintmill authors. All rights reserved.

#include "ToolMenuEntry.h"
#include "ToolMenuFixture.h"
#include "Widgets/SNullWidget.h"

using FToolMenuEntryTest = FToolMenuFixture;

namespace ToolMenuEntryTestPrivate
{
TSharedPtr<FUICommandInfo> MakeCommand()
{
	const TSharedRef<FBindingContext> Context = MakeShared<FBindingContext>("Context", FText(), NAME_None, NAME_None);
	TSharedPtr<FUICommandInfo> Command;
	FUICommandInfo::MakeCommandInfo(Context, Command, "Command", FText::FromString(TEXT("Label")), FText::FromString(TEXT("Description")),
		FSlateIcon(), EUserInterfaceActionType::ToggleButton, FInputChord(EModifierKey::Control, EKeys::S));
	return Command;
}
}

TEST_F(FToolMenuEntryTest, InitMenuEntryStampsTheCurrentOwner)
{
	FToolMenuOwnerScoped Scope(this);
	EXPECT_TRUE(MakeEntry(TEXT("A")).Owner == FToolMenuOwner(this));
}

TEST_F(FToolMenuEntryTest, InitMenuEntryIsAButtonUnlessToldOtherwise)
{
	EXPECT_EQ(MakeEntry(TEXT("A")).UserInterfaceActionType, EUserInterfaceActionType::Button);
}

TEST_F(FToolMenuEntryTest, InitMenuEntryOfACommandIsNamedLikeTheCommand)
{
	EXPECT_EQ(FToolMenuEntry::InitMenuEntry(ToolMenuEntryTestPrivate::MakeCommand()).Name, FName("Command"));
}

TEST_F(FToolMenuEntryTest, InitMenuEntryOfACommandTakesANameOfItsOwn)
{
	EXPECT_EQ(FToolMenuEntry::InitMenuEntry("Own", ToolMenuEntryTestPrivate::MakeCommand()).Name, FName("Own"));
}

TEST_F(FToolMenuEntryTest, InitMenuEntryOfACommandHasTheCommandsKind)
{
	EXPECT_EQ(FToolMenuEntry::InitMenuEntry(ToolMenuEntryTestPrivate::MakeCommand()).UserInterfaceActionType,
		EUserInterfaceActionType::ToggleButton);
}

TEST_F(FToolMenuEntryTest, InitWidgetIsIndentedUnlessToldOtherwise)
{
	EXPECT_FALSE(FToolMenuEntry::InitWidget("A", SNullWidget::NullWidget, FText::GetEmpty()).WidgetData.bNoIndent);
}

TEST_F(FToolMenuEntryTest, InitWidgetIsSearchableUnlessToldOtherwise)
{
	EXPECT_TRUE(FToolMenuEntry::InitWidget("A", SNullWidget::NullWidget, FText::GetEmpty()).WidgetData.bSearchable);
}

TEST_F(FToolMenuEntryTest, InitWidgetGivesTheWidget)
{
	const FToolMenuEntry Entry = FToolMenuEntry::InitWidget("A", SNullWidget::NullWidget, FText::GetEmpty());
	EXPECT_EQ(&Entry.MakeWidget.Execute(FToolMenuContext()).Get(), &SNullWidget::NullWidget.Get());
}

TEST_F(FToolMenuEntryTest, InitSubMenuClosesTheMenuAfterASelectionUnlessToldOtherwise)
{
	EXPECT_TRUE(FToolMenuEntry::InitSubMenu("A", FText(), FText(), FNewToolMenuDelegate()).bShouldCloseWindowAfterMenuSelection);
}

TEST_F(FToolMenuEntryTest, GetActionForCommandPrefersTheEntrysOwnList)
{
	const TSharedPtr<FUICommandInfo> Command = ToolMenuEntryTestPrivate::MakeCommand();
	const TSharedRef<FUICommandList> Own = MakeShared<FUICommandList>();
	const TSharedRef<FUICommandList> Other = MakeShared<FUICommandList>();
	Own->MapAction(Command, FExecuteAction());
	Other->MapAction(Command, FExecuteAction());
	TSharedPtr<const FUICommandList> Found;
	FToolMenuEntry::InitMenuEntryWithCommandList(Command, Own).GetActionForCommand(FToolMenuContext(Other), Found);
	EXPECT_EQ(Found.Get(), &Own.Get());
}

TEST_F(FToolMenuEntryTest, GetActionForCommandFallsBackOnTheContextsList)
{
	const TSharedPtr<FUICommandInfo> Command = ToolMenuEntryTestPrivate::MakeCommand();
	const TSharedRef<FUICommandList> List = MakeShared<FUICommandList>();
	List->MapAction(Command, FExecuteAction());
	TSharedPtr<const FUICommandList> Found;
	EXPECT_NE(FToolMenuEntry::InitMenuEntry(Command).GetActionForCommand(FToolMenuContext(List), Found), nullptr);
}
