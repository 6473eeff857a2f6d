// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/ContentBrowser/ContentModel.h"
#include "Host/ContentBrowser/SContentTiles.h"
#include "IAssetTypeActions.h"
#include "StandIn/AssetActivation.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SSearchBox;
class UFactory;

// The content browser: folders at the left, tiles at the right. It needs nothing but the asset registry and the asset tools.

namespace TintmillHost
{
class SBreadcrumbs;
class SContentTile;
class SFolderRow;
class SFolderTree;

/** A tile as a person finds it. */
struct FTilePlace
{
	FContentItemPtr Item;
	bool bSelected = false;

	/** Where to point at it, on the desktop; where it would be if it is scrolled out of sight. */
	FVector2D Center = FVector2D(0.0f, 0.0f);

	/** Whether any part of it is in sight. */
	bool bInSight = false;

	/** Notches of the wheel, positive away from the person, that bring its middle into sight; 0 if it is. */
	int32 Notches = 0;
};

/** The content browser. */
class SContentBrowser : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SContentBrowser) {}
	SLATE_END_ARGS()

	virtual ~SContentBrowser() override;

	/** Takes the arguments; the asset registry must be there. */
	void Construct(const FArguments& InArgs);

	/** The folder that is shown, such as "/Game/Looks". */
	const FString& GetFolder() const { return Folder; }

	/** Shows a folder; one that is not there shows the root. Ends a search. */
	void ShowFolder(const FString& Path);

	/** Shows the folder of an asset, such as "/Game/Looks/Teal.Teal", and selects it; false if there is none. */
	bool ShowAsset(const FString& ObjectPath);

	/** What is shown, folders first. */
	const TArray<FContentItemPtr>& GetItems() const { return Items; }

	/** What is selected, in the order of selection. */
	TArray<FContentItemPtr> GetSelection() const;

	/** The number of tiles that exist: those in sight. */
	int32 GetNumTiles() const;

	/** All tiles as a person finds them. */
	TArray<FTilePlace> GetPlaces() const;

	/** The middle of the area of tiles, and a place in it below the last tile, on the desktop. */
	FVector2D GetTilesCenter() const;
	FVector2D GetEmptyPlace() const;

	/** The row of a folder in the tree; null if it is out of sight. */
	TSharedPtr<SFolderRow> FindFolderRow(const FString& Path) const;

	/** What is wrong with the name that is being typed; empty if nothing. */
	FText GetNameProblem() const { return NameProblem; }

	/** Says whether a new asset's name is being typed. */
	bool IsNaming() const { return NewItem.IsValid(); }

	virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;

	/** Ctrl+F goes to the search from everywhere in here. */
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;

private:
	TSharedRef<SWidget> MakeTopRow();
	TSharedRef<SWidget> MakeTileArea();
	TSharedRef<ITableRow> MakeTile(FContentItemPtr Item, const TSharedRef<STableViewBase>& Owner);
	void RefreshItems();
	FText GetCountText() const;
	FText GetEmptyText() const;
	EVisibility GetEmptyVisibility() const;
	float GetTileWidth() const;
	float GetTileHeight() const;
	float GetThumbnailSize() const { return ThumbnailSize; }
	void OnSearchChanged(const FText& Text);
	void OnSearchCommitted(const FText& Text, ETextCommit::Type How);

	// What a person does with tiles.
	FReply OnTilesKeyDown(const FGeometry& Geometry, const FKeyEvent& Event);
	FReply OnSearchKeyDown(const FGeometry& Geometry, const FKeyEvent& Event);
	void OnTileDoubleClicked(FContentItemPtr Item);
	void Activate(const TArray<FContentItemPtr>& Activated, EAssetTypeActivationMethod::Type How);
	TSharedPtr<SWidget> OnContextMenu();
	TSharedRef<SWidget> OnAddNewMenu();
	void OnEditChosen();

	// A new asset, from the choice in the menu to its name.
	void BeginNaming(UFactory* DefaultFactory);
	void FocusNameBox();
	void OnNameChanged(const FText& Text);
	void OnNameCommitted(const FText& Text, ETextCommit::Type How);
	FReply OnNameKeyDown(const FGeometry& Geometry, const FKeyEvent& Event);
	void CommitNaming(const FString& Name);
	void EndNaming();
	TSharedPtr<SContentTile> FindNewTile() const;
	EVisibility GetNameProblemVisibility() const;
	FMargin GetNameProblemPlace() const;

	TUniquePtr<FContentModel> Model;
	uint64 ShownRevision = 0;
	FString Folder;
	FString Search;
	TArray<FContentItemPtr> Items;
	float ThumbnailSize;

	FContentItemPtr NewItem;
	StandIn::FPendingNewAsset NewAsset;
	FText NameProblem;
	bool bNameWantsFocus = false;

	/** The object path of an asset that is to be selected when it is listed. */
	FString AssetToSelect;

	TSharedPtr<SSearchBox> SearchBox;
	TSharedPtr<SBreadcrumbs> Breadcrumbs;
	TSharedPtr<SFolderTree> Tree;
	TSharedPtr<SContentTiles> Tiles;
	TSharedPtr<SWidget> TileArea;
};
}
