// Copyright The Tintmill authors. All rights reserved.

#include "Framework/MultiBox/MultiBox.h"
#include "Framework/MultiBox/MultiBoxDefs.h"
#include "StandIn/FatalHandler.h"

TAttribute<bool> FMultiBoxSettings::UseSmallToolBarIcons(false);
TAttribute<bool> FMultiBoxSettings::DisplayMultiboxHooks(false);

const FMultiBoxCustomization FMultiBoxCustomization::None = FMultiBoxCustomization(NAME_None);

FMultiBox::FMultiBox(const EMultiBoxType InType, const bool bInShouldCloseWindowAfterMenuSelection)
	: Type(InType)
	, bShouldCloseWindowAfterMenuSelection(bInShouldCloseWindowAfterMenuSelection)
{}

TSharedRef<FMultiBox> FMultiBox::Create(const EMultiBoxType InType, const bool bInShouldCloseWindowAfterMenuSelection)
{
	return MakeShareable(new FMultiBox(InType, bInShouldCloseWindowAfterMenuSelection));
}

TSharedRef<SMultiBoxWidget> FMultiBox::MakeWidget()
{
	if (Type != EMultiBoxType::Menu && Type != EMultiBoxType::MenuBar && Type != EMultiBoxType::ToolBar)
	{
		STANDIN_MISSING(TEXT("FMultiBox::MakeWidget of a box that is neither a menu nor a menu bar nor a tool bar"));
	}
	TSharedRef<SMultiBoxWidget> Widget = SNew(SMultiBoxWidget);
	Widget->SetMultiBox(AsShared());
	Widget->BuildMultiBoxWidget();
	return Widget;
}
