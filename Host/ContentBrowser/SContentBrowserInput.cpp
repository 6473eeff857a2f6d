// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/ContentMenus.h"
#include "Host/ContentBrowser/ContentStyle.h"
#include "Host/ContentBrowser/SContentBrowser.h"

#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"
#include "Widgets/Input/SSearchBox.h"

#include <algorithm>

// What a person does with tiles.

namespace TintmillHost
{
namespace
{
/** The smallest and the largest thumbnail, and what a notch of the wheel with Ctrl changes it by. */
constexpr float MinThumbnail = 48.0f;
constexpr float MaxThumbnail = 192.0f;
constexpr float ThumbnailStep = 16.0f;
}

FReply SContentBrowser::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (InKeyEvent.GetKey() == EKeys::F && InKeyEvent.IsControlDown() && !InKeyEvent.IsShiftDown() && !InKeyEvent.IsAltDown())
	{
		return FReply::Handled().SetUserFocus(SearchBox.ToSharedRef(), EFocusCause::SetDirectly);
	}
	return SCompoundWidget::OnKeyDown(MyGeometry, InKeyEvent);
}

FReply SContentBrowser::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	// Tiles take the press themselves: this one was beside them.
	if (MouseEvent.GetEffectingButton() == EKeys::RightMouseButton
		&& TileArea->GetCachedGeometry().IsUnderLocation(MouseEvent.GetScreenSpacePosition()))
	{
		Tiles->ClearSelection();
		return FReply::Handled();
	}
	return SCompoundWidget::OnMouseButtonDown(MyGeometry, MouseEvent);
}

FReply SContentBrowser::OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	// Tiles scroll by the wheel alone.
	if (MouseEvent.IsControlDown())
	{
		ThumbnailSize = std::clamp(ThumbnailSize + ThumbnailStep * MouseEvent.GetWheelDelta(), MinThumbnail, MaxThumbnail);
		return FReply::Handled();
	}
	return SCompoundWidget::OnMouseWheel(MyGeometry, MouseEvent);
}

FReply SContentBrowser::OnTilesKeyDown(const FGeometry&, const FKeyEvent& Event)
{
	const FKey Key = Event.GetKey();
	if (Key == EKeys::Enter)
	{
		Activate(GetSelection(), EAssetTypeActivationMethod::Opened);
		return FReply::Handled();
	}
	if (Key == EKeys::A && Event.IsControlDown())
	{
		Tiles->SelectAll();
		return FReply::Handled();
	}
	if (Key == EKeys::C && Event.IsControlDown())
	{
		CopyReferences(GetSelection());
		return FReply::Handled();
	}
	if (Key == EKeys::BackSpace)
	{
		ShowFolder(FContentModel::GetParent(Folder));
		return FReply::Handled();
	}
	if (Key == EKeys::Escape && Tiles->GetNumItemsSelected() > 0)
	{
		Tiles->ClearSelection();
		return FReply::Handled();
	}
	return FReply::Unhandled();
}

FReply SContentBrowser::OnSearchKeyDown(const FGeometry&, const FKeyEvent& Event)
{
	// From the search straight to what it found.
	if (Event.GetKey() == EKeys::Down && Items.Num() > 0)
	{
		Tiles->SetSelection(Items[0], ESelectInfo::OnNavigation);
		return FReply::Handled().SetUserFocus(Tiles.ToSharedRef(), EFocusCause::Navigation);
	}
	return FReply::Unhandled();
}

void SContentBrowser::OnTileDoubleClicked(FContentItemPtr Item)
{
	if (Item->Kind != EContentKind::NewAsset)
	{
		Activate({Item}, EAssetTypeActivationMethod::DoubleClicked);
	}
}

void SContentBrowser::Activate(const TArray<FContentItemPtr>& Activated, EAssetTypeActivationMethod::Type How)
{
	TArray<FAssetData> Assets;
	for (const FContentItemPtr& Item : Activated)
	{
		if (Item->Kind == EContentKind::Asset)
		{
			Assets.Add(Item->Asset);
		}
	}
	if (Assets.Num() > 0)
	{
		StandIn::ActivateAssets(Assets, How);
	}
	else if (Activated.Num() == 1 && Activated[0]->IsFolder())
	{
		ShowFolder(FString(Activated[0]->Path));
	}
}

TSharedPtr<SWidget> SContentBrowser::OnContextMenu()
{
	if (IsNaming())
	{
		return nullptr;
	}
	const TArray<FContentItemPtr> Selected = GetSelection();
	return Selected.Num() == 0 ? OnAddNewMenu() : MakeItemMenu(Selected, FSimpleDelegate::CreateSP(this, &SContentBrowser::OnEditChosen));
}

TSharedRef<SWidget> SContentBrowser::OnAddNewMenu()
{
	return MakeNewAssetMenu(FOnFactoryChosen::CreateSP(this, &SContentBrowser::BeginNaming));
}

void SContentBrowser::OnEditChosen()
{
	Activate(GetSelection(), EAssetTypeActivationMethod::Opened);
}
}
