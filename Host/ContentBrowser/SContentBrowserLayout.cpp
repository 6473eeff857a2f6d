// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/ContentStyle.h"
#include "Host/ContentBrowser/SBreadcrumbs.h"
#include "Host/ContentBrowser/SContentBrowser.h"
#include "Host/ContentBrowser/SContentTile.h"
#include "Host/ContentBrowser/SFolderTree.h"

#include "Styling/CoreStyle.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/Input/SSearchBox.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SSplitter.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

// What the content browser is made of.

#define LOCTEXT_NAMESPACE "ContentBrowser"

namespace TintmillHost
{
namespace
{
constexpr float TreeShare = 0.16f;
constexpr float SearchWidth = 230.0f;
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
						.WrapTextAt(ContentStyle::ProblemWidth)
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
}

#undef LOCTEXT_NAMESPACE
