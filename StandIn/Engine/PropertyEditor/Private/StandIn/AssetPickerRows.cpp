// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/AssetPickerRows.h"
#include "AssetPicker/SAssetPickerList.h"
#include "AssetPicker/SAssetPickerWithMenu.h"
#include "Layout/Children.h"

namespace AssetPickerRowsPrivate
{
TSharedPtr<SAssetPickerWithMenu> Find(const TSharedRef<SWidget>& Widget)
{
	if (Widget->GetType() == TEXT("SAssetPickerWithMenu"))
	{
		return StaticCastSharedRef<SAssetPickerWithMenu>(Widget);
	}
	FChildren* Children = Widget->GetChildren();
	for (int32 Index = 0; Index < Children->Num(); ++Index)
	{
		const TSharedPtr<SAssetPickerWithMenu> Found = Find(Children->GetChildAt(Index));
		if (Found.IsValid())
		{
			return Found;
		}
	}
	return nullptr;
}
}

StandIn::FAssetPickerState StandIn::GetAssetPickerState(const TSharedRef<SWidget>& Root)
{
	FAssetPickerState State;
	const TSharedPtr<SAssetPickerWithMenu> Picker = AssetPickerRowsPrivate::Find(Root);
	State.bFound = Picker.IsValid();
	if (!State.bFound)
	{
		return State;
	}
	const TSharedPtr<SAssetPickerList> List = Picker->GetList();
	for (int32 Index = 0; Index < List->GetNumShown(); ++Index)
	{
		FAssetPickerRow Row;
		Row.Asset = List->GetShownItem(Index).Asset;
		Row.Label = List->GetShownItem(Index).Label;
		Row.TypeLabel = SAssetPickerList::GetTypeLabel(Row.Asset);
		Row.bSelected = Index == List->GetSelectedIndex();
		Row.bVisible = List->IsRowVisible(Index);
		Row.Centre = List->GetRowCentre(Index);
		State.Rows.Add(Row);
	}
	State.CountText = Picker->GetCountText().ToString();
	State.SearchBox = Picker->GetSearchBox();
	State.ListTopLeft = List->GetCachedGeometry().GetAbsolutePosition();
	State.ListSize = List->GetCachedGeometry().GetAbsoluteSize();
	return State;
}

bool StandIn::ScrollAssetPickerTo(const TSharedRef<SWidget>& Root, const FString& Label)
{
	const TSharedPtr<SAssetPickerWithMenu> Picker = AssetPickerRowsPrivate::Find(Root);
	const TSharedPtr<SAssetPickerList> List = Picker.IsValid() ? Picker->GetList() : nullptr;
	for (int32 Index = 0; List.IsValid() && Index < List->GetNumShown(); ++Index)
	{
		if (List->GetShownItem(Index).Label == Label)
		{
			List->ScrollTo(Index);
			return true;
		}
	}
	return false;
}
