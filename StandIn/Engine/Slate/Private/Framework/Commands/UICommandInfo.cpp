// Copyright The Tintmill authors. All rights reserved.

#include "Framework/Commands/UICommandInfo.h"

FBindingContext::FBindingContext(
	const FName InContextName, const FText& InContextDesc, const FName InContextParent, const FName InStyleSetName)
	: ContextName(InContextName)
	, ContextParent(InContextParent)
	, ContextDesc(InContextDesc)
	, StyleSetName(InStyleSetName)
{
	check(!InContextName.IsNone());
}

FUICommandInfo::FUICommandInfo(const FName InBindingContext)
	: UserInterfaceType(EUserInterfaceActionType::Button)
	, BindingContext(InBindingContext)
{}

void FUICommandInfo::MakeCommandInfo(const TSharedRef<FBindingContext>& InContext, TSharedPtr<FUICommandInfo>& OutCommand,
	const FName InCommandName, const FText& InCommandLabel, const FText& InCommandDesc, const FSlateIcon& InIcon,
	const EUserInterfaceActionType InUserInterfaceType, const FInputChord& InDefaultChord)
{
	ensure(!InCommandLabel.IsEmpty());
	OutCommand = MakeShareable(new FUICommandInfo(InContext->GetContextName()));
	OutCommand->CommandName = InCommandName;
	OutCommand->Label = InCommandLabel;
	OutCommand->Description = InCommandDesc;
	OutCommand->Icon = InIcon;
	OutCommand->UserInterfaceType = InUserInterfaceType;
	OutCommand->DefaultChord = InDefaultChord;
}

FText FUICommandInfo::GetInputText() const
{
	return DefaultChord.GetInputText(false);
}
