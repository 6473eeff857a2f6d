// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/MenuRows.h"
#include "Framework/MultiBox/SMenuEntryRow.h"
#include "Framework/MultiBox/SMenuHeading.h"
#include "Layout/Children.h"

namespace MenuRowsPrivate
{
template <typename WidgetType>
void Collect(const TSharedRef<SWidget>& Widget, const TCHAR* TypeName, TArray<TSharedRef<WidgetType>>& OutWidgets)
{
	if (!Widget->GetVisibility().IsVisible())
	{
		return;
	}
	if (Widget->GetType() == TypeName)
	{
		OutWidgets.Add(StaticCastSharedRef<WidgetType>(Widget));
		return;
	}
	FChildren* Children = Widget->GetChildren();
	for (int32 Index = 0; Index < Children->Num(); ++Index)
	{
		Collect(Children->GetChildAt(Index), TypeName, OutWidgets);
	}
}
}

TArray<StandIn::FMenuRow> StandIn::ListMenuRows(const TSharedRef<SWidget>& Root)
{
	TArray<TSharedRef<SMenuEntryRow>> Widgets;
	MenuRowsPrivate::Collect(Root, TEXT("SMenuEntryRow"), Widgets);
	TArray<FMenuRow> Rows;
	for (const TSharedRef<SMenuEntryRow>& Widget : Widgets)
	{
		FMenuRow Row;
		Row.Label = Widget->GetBlock().GetLabel().ToString();
		Row.ToolTip = Widget->GetBlock().GetToolTip().ToString();
		Row.InputText = Widget->GetBlock().GetInputText().ToString();
		Row.Widget = Widget;
		Row.Centre = Widget->GetCachedGeometry().GetAbsolutePositionAtCoordinates(FVector2D(0.5f, 0.5f));
		Row.CheckCentre = Widget->GetCheckCentre();
		Row.bEnabled = Widget->IsEnabled();
		Row.bHighlighted = Widget->IsHighlighted();
		Row.bHasCheck = Widget->HasCheck();
		Row.CheckState = Widget->GetCheckState();
		Row.bRepeats = Widget->GetBlock().GetAction().CanRepeat();
		Row.bHasSubMenu = Widget->HasSubMenu();
		Row.bSubMenuOpen = Widget->IsSubMenuOpen();
		Rows.Add(Row);
	}
	return Rows;
}

TArray<FString> StandIn::ListMenuHeadings(const TSharedRef<SWidget>& Root)
{
	TArray<TSharedRef<SMenuHeading>> Widgets;
	MenuRowsPrivate::Collect(Root, TEXT("SMenuHeading"), Widgets);
	TArray<FString> Headings;
	for (const TSharedRef<SMenuHeading>& Widget : Widgets)
	{
		Headings.Add(Widget->GetText().ToString());
	}
	return Headings;
}
