// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/SContentBrowser.h"

#include "Host/ContentBrowser/ContentStyle.h"
#include "Host/ContentBrowser/SBreadcrumbs.h"
#include "Host/ContentBrowser/SContentTile.h"
#include "Host/ContentBrowser/SFolderTree.h"

#include "Styling/CoreStyle.h"
#include "UObject/UObjectBase.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/Input/SSearchBox.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SSplitter.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

#include <algorithm>
#include <cmath>

#define LOCTEXT_NAMESPACE "ContentBrowser"

namespace TintmillHost
{
namespace
{
constexpr float TreeShare = 0.16f;
constexpr float SearchWidth = 230.0f;

/** The widest that what is wrong with a name is before it is broken into lines. */
constexpr float ProblemWidth = 260.0f;

/** What one notch of the wheel scrolls by. */
constexpr float NotchHeight = 32.0f;
}

SContentBrowser::~SContentBrowser()
{
	if (UObjectInitialized())
	{
		StandIn::CancelNewAsset(NewAsset);
	}
}

void SContentBrowser::Construct(const FArguments&)
{
	Model = MakeUnique<FContentModel>();
	Folder = FContentModel::GetRoot();
	ThumbnailSize = ContentStyle::ThumbnailSize;
	NewAsset.Factory = nullptr;
	// clang-format off
	ChildSlot
	[
		SNew(SBorder)
		.BorderImage(ContentStyle::GetPanelBrush())
		.Padding(FMargin(4.0f))
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot()
			.AutoHeight()
			.Padding(FMargin(0.0f, 0.0f, 0.0f, 4.0f))
			[
				MakeTopRow()
			]
			+ SVerticalBox::Slot()
			.FillHeight(1.0f)
			[
				SNew(SSplitter)
				.PhysicalSplitterHandleSize(4.0f)
				+ SSplitter::Slot()
				.Value(TreeShare)
				[
					SNew(SBorder)
					.BorderImage(ContentStyle::GetViewBrush())
					.Padding(FMargin(2.0f))
					[
						SAssignNew(Tree, SFolderTree)
						.Model(Model.Get())
						.OnFolderPicked(this, &SContentBrowser::ShowFolder)
					]
				]
				+ SSplitter::Slot()
				.Value(1.0f - TreeShare)
				[
					MakeTileArea()
				]
			]
		]
	];
	// clang-format on
	ShowFolder(Folder);
}

TSharedRef<SWidget> SContentBrowser::MakeTopRow()
{
	// clang-format off
	return SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		.AutoWidth()
		.VAlign(VAlign_Center)
		[
			SNew(SComboButton)
			.ButtonStyle(ContentStyle::GetAddButtonStyle())
			.ForegroundColor(FSlateColor(FLinearColor::White))
			.ContentPadding(FMargin(6.0f, 1.0f, 2.0f, 1.0f))
			.OnGetMenuContent(this, &SContentBrowser::OnAddNewMenu)
			.ToolTipText(LOCTEXT("AddNewToolTip", "Create a new asset in the shown folder."))
			.ButtonContent()
			[
				SNew(STextBlock)
				.Text(LOCTEXT("AddNewButton", "Add New"))
				.Font(ContentStyle::GetFont(9, true))
			]
		]
		+ SHorizontalBox::Slot()
		.FillWidth(1.0f)
		.VAlign(VAlign_Center)
		.Padding(FMargin(8.0f, 0.0f))
		[
			SAssignNew(Breadcrumbs, SBreadcrumbs)
			.OnFolderPicked(this, &SContentBrowser::ShowFolder)
		]
		+ SHorizontalBox::Slot()
		.AutoWidth()
		.VAlign(VAlign_Center)
		[
			SNew(SBox)
			.WidthOverride(SearchWidth)
			[
				SAssignNew(SearchBox, SSearchBox)
				.HintText(LOCTEXT("SearchContentHint", "Search Content"))
				.OnTextChanged(this, &SContentBrowser::OnSearchChanged)
				.OnTextCommitted(this, &SContentBrowser::OnSearchCommitted)
				.OnKeyDownHandler(this, &SContentBrowser::OnSearchKeyDown)
			]
		];
	// clang-format on
}

TSharedRef<SWidget> SContentBrowser::MakeTileArea()
{
	// clang-format off
	return SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.FillHeight(1.0f)
		[
			SAssignNew(TileArea, SOverlay)
			+ SOverlay::Slot()
			[
				SNew(SBorder)
				.BorderImage(ContentStyle::GetViewBrush())
				.Padding(FMargin(3.0f))
				[
					SAssignNew(Tiles, SContentTiles)
					.ListItemsSource(&Items)
					.ItemWidth(this, &SContentBrowser::GetTileWidth)
					.ItemHeight(this, &SContentBrowser::GetTileHeight)
					.OnGenerateTile(this, &SContentBrowser::MakeTile)
					.OnMouseButtonDoubleClick(this, &SContentBrowser::OnTileDoubleClicked)
					.OnContextMenuOpening(this, &SContentBrowser::OnContextMenu)
					.OnKeyDownHandler(this, &SContentBrowser::OnTilesKeyDown)
				]
			]
			+ SOverlay::Slot()
			.HAlign(HAlign_Center)
			.VAlign(VAlign_Center)
			[
				SNew(STextBlock)
				.Visibility(this, &SContentBrowser::GetEmptyVisibility)
				.Text(this, &SContentBrowser::GetEmptyText)
				.ColorAndOpacity(FSlateColor(ContentStyle::GetDimTextColor()))
			]
			+ SOverlay::Slot()
			.HAlign(HAlign_Left)
			.VAlign(VAlign_Top)
			[
				SNew(SBox)
				.Visibility(this, &SContentBrowser::GetNameProblemVisibility)
				.Padding(this, &SContentBrowser::GetNameProblemPlace)
				[
					SNew(SBorder)
					.BorderImage(ContentStyle::GetErrorBrush())
					.Padding(FMargin(6.0f, 4.0f))
					[
						SNew(STextBlock)
						.Text(this, &SContentBrowser::GetNameProblem)
						.WrapTextAt(ProblemWidth)
						.ColorAndOpacity(FSlateColor(FLinearColor::White))
					]
				]
			]
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		.Padding(FMargin(6.0f, 3.0f, 6.0f, 0.0f))
		[
			SNew(STextBlock)
			.Text(this, &SContentBrowser::GetCountText)
		];
	// clang-format on
}

TSharedRef<ITableRow> SContentBrowser::MakeTile(FContentItemPtr Item, const TSharedRef<STableViewBase>& Owner)
{
	return SNew(SContentTile, Owner)
		.Item(Item)
		.ThumbnailSize(this, &SContentBrowser::GetThumbnailSize)
		.OnNameChanged(this, &SContentBrowser::OnNameChanged)
		.OnNameCommitted(this, &SContentBrowser::OnNameCommitted)
		.OnNameKeyDown(this, &SContentBrowser::OnNameKeyDown);
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

TArray<FTilePlace> SContentBrowser::GetPlaces() const
{
	TArray<FTilePlace> Places;
	const FGeometry& Geometry = Tiles->GetCachedGeometry();
	const int32 LineLength = Tiles->GetLineLength();
	const float FirstLine = static_cast<float>(Tiles->GetScrollOffset()) / static_cast<float>(LineLength);
	const float Width = GetTileWidth();
	const float Height = GetTileHeight();
	for (int32 Index = 0; Index < Items.Num(); ++Index)
	{
		FTilePlace Place;
		Place.Item = Items[Index];
		Place.bSelected = Tiles->IsItemSelected(Items[Index]);
		const FVector2D Local(
			(static_cast<float>(Index % LineLength) + 0.5f) * Width, (static_cast<float>(Index / LineLength) - FirstLine + 0.5f) * Height);
		Place.Center = Geometry.LocalToAbsolute(Local);
		const float View = Geometry.GetLocalSize().Y;
		Place.bInSight = Local.Y + Height * 0.5f > 0.0f && Local.Y - Height * 0.5f < View;
		if (Local.Y < 0.0f || Local.Y >= View)
		{
			Place.Notches = static_cast<int32>(std::lround((View * 0.5f - Local.Y) / NotchHeight));
		}
		Places.Add(Place);
	}
	return Places;
}

FVector2D SContentBrowser::GetTilesCenter() const
{
	return Tiles->GetCachedGeometry().GetAbsolutePositionAtCoordinates(FVector2D(0.5f, 0.5f));
}

FVector2D SContentBrowser::GetEmptyPlace() const
{
	// Right of the last tile of the last line, or in the strip that no tile reaches.
	const FGeometry& Geometry = Tiles->GetCachedGeometry();
	const int32 LineLength = Tiles->GetLineLength();
	const bool bFullLine = Items.Num() % LineLength == 0;
	const float Lines = std::ceil(static_cast<float>(Items.Num()) / static_cast<float>(LineLength));
	const FVector2D Size = Geometry.GetLocalSize();
	const float Y = bFullLine ? (Lines + 0.5f) * GetTileHeight() : (Lines - 0.5f) * GetTileHeight();
	return Geometry.LocalToAbsolute(FVector2D(Size.X - 20.0f, std::min(Y, Size.Y - 4.0f)));
}

TSharedPtr<SFolderRow> SContentBrowser::FindFolderRow(const FString& Path) const
{
	return Tree->FindRow(Path);
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

FMargin SContentBrowser::GetNameProblemPlace() const
{
	const TSharedPtr<SContentTile> Tile = FindNewTile();
	if (!Tile.IsValid())
	{
		return FMargin(0.0f);
	}
	// Below the tile, or above it where there is no room.
	const FGeometry& Area = TileArea->GetCachedGeometry();
	const FVector2D Size = Area.GetLocalSize();
	const FVector2D Place = Area.AbsoluteToLocal(Tile->GetCachedGeometry().GetAbsolutePosition());
	const float Left = std::max(0.0f, std::min(Place.X, Size.X - ProblemWidth - 12.0f));
	constexpr float Room = 42.0f;
	const float Below = Place.Y + GetTileHeight();
	return FMargin(Left, Below + Room <= Size.Y ? Below : std::max(0.0f, Place.Y - Room * 0.5f), 0.0f, 0.0f);
}
}

#undef LOCTEXT_NAMESPACE
