// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/SContentBrowser.h"

#include "Host/ContentBrowser/ContentStyle.h"
#include "Host/ContentBrowser/SBreadcrumbs.h"
#include "Host/ContentBrowser/SFolderTree.h"

#include "UObject/UObjectBase.h"
#include "Widgets/Input/SSearchBox.h"

#define LOCTEXT_NAMESPACE "ContentBrowser"

namespace TintmillHost
{
SContentBrowser::~SContentBrowser()
{
	if (UObjectInitialized())
	{
		StandIn::CancelNewAsset(NewAsset);
	}
}

void SContentBrowser::ShowFolder(const FString& Path)
{
	EndNaming();
	Folder = Model->HasFolder(Path) ? Path : FContentModel::GetRoot();
	Search.Empty();
	SearchBox->SetText(FText::GetEmpty());
	Breadcrumbs->ShowFolder(Folder);
	Tree->ShowFolder(Folder);
	Tiles->ClearSelection();
	Tiles->ScrollToTop();
	RefreshItems();
}

bool SContentBrowser::ShowAsset(const FString& ObjectPath)
{
	const FContentItemPtr Item = Model->FindAsset(ObjectPath);
	if (!Item.IsValid())
	{
		return false;
	}
	ShowFolder(Item->Asset.PackagePath.ToString());
	AssetToSelect = ObjectPath;
	RefreshItems();
	return true;
}

void SContentBrowser::RefreshItems()
{
	if (ShownRevision != Model->GetRevision())
	{
		ShownRevision = Model->GetRevision();
		Tree->Refresh();
	}
	Items = Model->List(Folder, Search);
	if (NewItem.IsValid())
	{
		// Among the assets, in the place of its name.
		const FContentItem* const Place = NewItem.Get();
		const int32 Index =
			Items.IndexOfByPredicate([Place](const FContentItemPtr& Item) { return !Item->IsFolder() && Place->SortKey < Item->SortKey; });
		Items.Insert(NewItem, Index == INDEX_NONE ? Items.Num() : Index);
	}
	Tiles->RequestListRefresh();
	const FContentItemPtr ToSelect = AssetToSelect.IsEmpty() ? FContentItemPtr() : Model->FindAsset(AssetToSelect);
	if (ToSelect.IsValid() && Items.Contains(ToSelect))
	{
		AssetToSelect.Empty();
		Tiles->SetSelection(ToSelect, ESelectInfo::OnNavigation);
		Tiles->RequestScrollIntoView(ToSelect);
	}
}

TArray<FContentItemPtr> SContentBrowser::GetSelection() const
{
	return Tiles->GetSelectedItems();
}

int32 SContentBrowser::GetNumTiles() const
{
	return Tiles->GetNumGeneratedChildren();
}

void SContentBrowser::Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime)
{
	SCompoundWidget::Tick(AllottedGeometry, InCurrentTime, InDeltaTime);
	if (ShownRevision != Model->GetRevision())
	{
		if (Model->HasFolder(Folder))
		{
			RefreshItems();
		}
		else
		{
			// The folder went away on disk: the nearest one that is still there is shown.
			FString Path = Folder;
			while (!Model->HasFolder(Path))
			{
				Path = FContentModel::GetParent(Path);
			}
			ShowFolder(Path);
		}
	}
	if (bNameWantsFocus)
	{
		FocusNameBox();
	}
}

FText SContentBrowser::GetCountText() const
{
	const int32 Num = Items.Num();
	FString Text = FString::FromInt(Num) + (Num == 1 ? TEXT(" item") : TEXT(" items"));
	const int32 NumSelected = Tiles->GetNumItemsSelected();
	if (NumSelected > 0)
	{
		Text += FString::Printf(TEXT(" (%d selected)"), NumSelected);
	}
	return FText::FromString(Text);
}

FText SContentBrowser::GetEmptyText() const
{
	return Search.IsEmpty() ? LOCTEXT("EmptyFolder", "Drop files here or right click to create content.")
							: LOCTEXT("EmptySearch", "No results, check your filter.");
}

EVisibility SContentBrowser::GetEmptyVisibility() const
{
	return Items.Num() == 0 ? EVisibility::HitTestInvisible : EVisibility::Collapsed;
}

float SContentBrowser::GetTileWidth() const
{
	return ThumbnailSize + 2.0f * (ContentStyle::TileGap + ContentStyle::PlatePadding);
}

float SContentBrowser::GetTileHeight() const
{
	return GetTileWidth() + 3.0f + ContentStyle::NameHeight;
}

void SContentBrowser::OnSearchChanged(const FText& Text)
{
	EndNaming();
	Search = Text.ToString().TrimStartAndEnd();
	Tiles->ScrollToTop();
	RefreshItems();
}

void SContentBrowser::OnSearchCommitted(const FText& Text, ETextCommit::Type)
{
	if (!(Text.ToString().TrimStartAndEnd() == Search))
	{
		OnSearchChanged(Text);
	}
}

EVisibility SContentBrowser::GetNameProblemVisibility() const
{
	return NameProblem.IsEmpty() ? EVisibility::Collapsed : EVisibility::HitTestInvisible;
}
}

#undef LOCTEXT_NAMESPACE
