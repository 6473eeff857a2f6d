// Copyright The Tintmill authors. All rights reserved.

#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandList.h"
#include "Input/Events.h"
#include "Support/MenuUser.h"

namespace
{
const FExecuteAction DoNothing = FExecuteAction::CreateLambda([]() {});

TSharedPtr<FUICommandInfo> MakeSaveCommand()
{
	const TSharedRef<FBindingContext> Context = MakeShared<FBindingContext>("Context", FText(), NAME_None, NAME_None);
	TSharedPtr<FUICommandInfo> Command;
	FUICommandInfo::MakeCommandInfo(Context, Command, "Save", FText::FromString(TEXT("Save")), FText(), FSlateIcon(),
		EUserInterfaceActionType::Button, FInputChord(EModifierKey::Control | EModifierKey::Shift, EKeys::S));
	return Command;
}
}

TEST(FUIAction, WithoutAnyDelegateCanExecute)
{
	EXPECT_TRUE(FUIAction().CanExecute());
}

TEST(FUIAction, WithoutAnyDelegateExecutesNothing)
{
	EXPECT_FALSE(FUIAction().Execute());
}

TEST(FUIAction, WithoutAnyDelegateIsUnchecked)
{
	EXPECT_EQ(FUIAction().GetCheckState(), ECheckBoxState::Unchecked);
}

TEST(FUIAction, WithoutAnyDelegateIsVisible)
{
	EXPECT_TRUE(FUIAction().IsVisible());
}

TEST(FUIAction, DoesNotRunWhenItCannotExecute)
{
	bool bRun = false;
	FUIAction(FExecuteAction::CreateLambda([&bRun]() { bRun = true; }), FCanExecuteAction::CreateLambda([]() { return false; })).Execute();
	EXPECT_FALSE(bRun);
}

TEST(FUIAction, WrapsACheckedQueryOfTwoStates)
{
	EXPECT_EQ(FUIAction(DoNothing, FCanExecuteAction(), FIsActionChecked::CreateLambda([]() { return true; })).GetCheckState(),
		ECheckBoxState::Checked);
}

TEST(FUIAction, GivesACheckStateOfThreeStates)
{
	EXPECT_EQ(FUIAction(DoNothing, FCanExecuteAction(), FGetActionCheckState::CreateLambda([]() {
		return ECheckBoxState::Undetermined;
	})).GetCheckState(),
		ECheckBoxState::Undetermined);
}

TEST(FUIAction, DoesNotRepeatUnlessToldOtherwise)
{
	EXPECT_FALSE(FUIAction(DoNothing, FCanExecuteAction()).CanRepeat());
}

TEST(FUIAction, OfOneDelegateIsFatalWithoutSlate)
{
	EXPECT_DEATH(FUIAction{DoNothing}, "");
}

TEST(FUIAction, OfOneDelegateCanExecuteWithSlate)
{
	FMenuUser User;
	EXPECT_TRUE(FUIAction(DoNothing).CanExecute());
}

TEST(FInputChord, NamesItsModifiersAndItsKey)
{
	EXPECT_TRUE(IsText(MakeSaveCommand()->GetInputText().ToString(), TEXT("Ctrl+Shift+S")));
}

TEST(FInputChord, OfNoKeyHasNoText)
{
	EXPECT_TRUE(FInputChord().GetInputText().IsEmpty());
}

TEST(FUICommandList, ExecutesAMappedCommand)
{
	int32 Runs = 0;
	FUICommandList List;
	const TSharedPtr<FUICommandInfo> Command = MakeSaveCommand();
	List.MapAction(Command, FExecuteAction::CreateLambda([&Runs]() { ++Runs; }));
	List.ExecuteAction(Command.ToSharedRef());
	EXPECT_EQ(Runs, 1);
}

TEST(FUICommandList, CannotExecuteACommandThatIsNotMapped)
{
	EXPECT_FALSE(FUICommandList().CanExecuteAction(MakeSaveCommand().ToSharedRef()));
}

TEST(FUICommandList, MappingACommandTwiceIsFatal)
{
	FUICommandList List;
	const TSharedPtr<FUICommandInfo> Command = MakeSaveCommand();
	List.MapAction(Command, DoNothing);
	EXPECT_DEATH(List.MapAction(Command, DoNothing), "Save is already mapped");
}

TEST(FUICommandList, FindsACommandInAnAppendedList)
{
	const TSharedRef<FUICommandList> Behind = MakeShared<FUICommandList>();
	const TSharedPtr<FUICommandInfo> Command = MakeSaveCommand();
	Behind->MapAction(Command, DoNothing);
	FUICommandList List;
	List.Append(Behind);
	EXPECT_TRUE(List.IsActionMapped(Command));
}

TEST(FUICommandList, ForgetsAnUnmappedCommand)
{
	FUICommandList List;
	const TSharedPtr<FUICommandInfo> Command = MakeSaveCommand();
	List.MapAction(Command, DoNothing);
	List.UnmapAction(Command);
	EXPECT_FALSE(List.IsActionMapped(Command));
}

TEST(FUICommandList, RunsTheCommandOfAPressedChord)
{
	int32 Runs = 0;
	FUICommandList List;
	List.MapAction(MakeSaveCommand(), FExecuteAction::CreateLambda([&Runs]() { ++Runs; }));
	const FModifierKeysState CtrlShift(true, false, true, false, false, false, false, false, false);
	List.ProcessCommandBindings(FKeyEvent(EKeys::S, CtrlShift, 0, false, 0, 0));
	EXPECT_EQ(Runs, 1);
}

TEST(FUICommandList, DoesNotRunACommandWithoutItsModifiers)
{
	FUICommandList List;
	List.MapAction(MakeSaveCommand(), DoNothing);
	EXPECT_FALSE(List.ProcessCommandBindings(FKeyEvent(EKeys::S, FModifierKeysState(), 0, false, 0, 0)));
}
