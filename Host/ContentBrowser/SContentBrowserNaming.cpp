// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/AssetNames.h"
#include "Host/ContentBrowser/SContentBrowser.h"
#include "Host/ContentBrowser/SContentTile.h"
#include "Host/Program/Strings.h"

#include "Factories/Factory.h"
#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Input/SSearchBox.h"

// A new asset, from the choice in the menu to its name. Nothing is made before the name is confirmed.

namespace TintmillHost
{
void SContentBrowser::BeginNaming(UFactory* DefaultFactory)
{
	EndNaming();
	if (!StandIn::BeginNewAsset(DefaultFactory, Folder, NewAsset))
	{
		return;
	}
	if (!Search.IsEmpty())
	{
		// A search would hide what is to be named.
		Search.Empty();
		SearchBox->SetText(FText::GetEmpty());
	}
	NewItem = MakeShared<FContentItem>();
	NewItem->Kind = EContentKind::NewAsset;
	NewItem->Label = NewAsset.AssetName;
	NewItem->Class = NewAsset.Factory->GetSupportedClass();
	NewItem->SortKey = ToUtf8(NewAsset.AssetName.ToLower());
	bNameWantsFocus = true;
	RefreshItems();
	Tiles->ClearSelection();
	Tiles->RequestScrollIntoView(NewItem);
}

void SContentBrowser::FocusNameBox()
{
	// A menu that closes gives the focus back to where it was; that comes first.
	const TSharedPtr<SContentTile> Tile = FindNewTile();
	FSlateApplication& Application = FSlateApplication::Get();
	if (Tile.IsValid() && !Application.AnyMenusVisible())
	{
		bNameWantsFocus = !Application.SetKeyboardFocus(Tile->GetNameBox(), EFocusCause::SetDirectly);
	}
}

void SContentBrowser::OnNameChanged(const FText& Text)
{
	NameProblem = CheckNewAssetName(NewAsset.PackagePath, Text.ToString());
}

void SContentBrowser::OnNameCommitted(const FText& Text, ETextCommit::Type How)
{
	if (!IsNaming() || bNameWantsFocus)
	{
		return;
	}
	NameProblem = CheckNewAssetName(NewAsset.PackagePath, Text.ToString());
	if (NameProblem.IsEmpty())
	{
		CommitNaming(Text.ToString());
	}
	else if (How == ETextCommit::OnUserMovedFocus)
	{
		EndNaming();
	}
}

FReply SContentBrowser::OnNameKeyDown(const FGeometry&, const FKeyEvent& Event)
{
	if (Event.GetKey() == EKeys::Escape)
	{
		EndNaming();
		return FReply::Handled().SetUserFocus(Tiles.ToSharedRef(), EFocusCause::SetDirectly);
	}
	return FReply::Unhandled();
}

void SContentBrowser::CommitNaming(const FString& Name)
{
	StandIn::FPendingNewAsset Pending = NewAsset;
	NewAsset.Factory = nullptr;
	EndNaming();
	FSlateApplication::Get().SetKeyboardFocus(Tiles, EFocusCause::SetDirectly);
	AssetToSelect = Pending.PackagePath / Name + TEXT(".") + Name;
	if (StandIn::CommitNewAsset(Pending, Name) == nullptr)
	{
		AssetToSelect.Empty();
	}
	RefreshItems();
}

void SContentBrowser::EndNaming()
{
	StandIn::CancelNewAsset(NewAsset);
	NameProblem = FText::GetEmpty();
	bNameWantsFocus = false;
	if (NewItem.IsValid())
	{
		NewItem.Reset();
		RefreshItems();
	}
}

TSharedPtr<SContentTile> SContentBrowser::FindNewTile() const
{
	const TSharedPtr<ITableRow> Row = NewItem.IsValid() ? Tiles->WidgetFromItem(NewItem) : TSharedPtr<ITableRow>();
	return Row.IsValid() ? StaticCastSharedRef<SContentTile>(Row->AsWidget()) : TSharedPtr<SContentTile>();
}
}
