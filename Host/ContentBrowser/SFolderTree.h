// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/ContentBrowser/ContentModel.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/Views/SListView.h"
#include "Widgets/Views/STableRow.h"

#include <map>
#include <string>

// The tree of folders at the left of the content browser: a list of the folders whose parents are expanded.

namespace TintmillHost
{
/** A folder in the tree. */
struct FFolderRow
{
	FString Path;
	FString Label;
	int32 Depth = 0;
	bool bHasFolders = false;
	bool bExpanded = false;
};

using FFolderRowPtr = TSharedPtr<FFolderRow>;

/** Called with a folder. */
DECLARE_DELEGATE_OneParam(FOnFolder, const FString& /*Path*/);

/** One row of the tree: an arrow where there is something to expand, a folder, its name. */
class SFolderRow : public STableRow<FFolderRowPtr>
{
public:
	SLATE_BEGIN_ARGS(SFolderRow) {}
	SLATE_ARGUMENT(FFolderRowPtr, Row)

	/** What is called by a click on the arrow. */
	SLATE_EVENT(FOnFolder, OnToggled)
	SLATE_END_ARGS()

	/** Takes the arguments and the list that the row is in. */
	void Construct(const FArguments& InArgs, const TSharedRef<STableViewBase>& Owner);

	/** The folder. */
	const FFolderRowPtr& GetRow() const { return Row; }

	/** Where to click to expand or collapse, on the desktop. */
	FVector2D GetArrowCenter() const;

private:
	FReply OnArrowClicked();
	const FSlateBrush* GetArrow() const;
	EVisibility GetArrowVisibility() const;

	FFolderRowPtr Row;
	FOnFolder OnToggled;
	TSharedPtr<SWidget> Arrow;
};

/** The tree of folders. */
class SFolderTree : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SFolderTree)
		: _Model(nullptr)
	{}

	/** The folders; outlives the tree. */
	SLATE_ARGUMENT(const FContentModel*, Model)

	/** What is told of the folder that the person picked. */
	SLATE_EVENT(FOnFolder, OnFolderPicked)
	SLATE_END_ARGS()

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Makes the rows anew from the model. */
	void Refresh();

	/** Selects a folder and expands those above it. */
	void ShowFolder(const FString& Path);

	/** Expands or collapses a folder. */
	void ToggleFolder(const FString& Path);

	/** The row of a folder; null if it is out of sight. */
	TSharedPtr<SFolderRow> FindRow(const FString& Path) const;

private:
	void AddRows(const FString& Path, int32 Depth);
	TSharedRef<ITableRow> MakeRow(FFolderRowPtr Row, const TSharedRef<STableViewBase>& Owner);
	void OnRowPicked(FFolderRowPtr Row, ESelectInfo::Type How);
	void OnRowDoubleClicked(FFolderRowPtr Row);
	FReply OnListKeyDown(const FGeometry& Geometry, const FKeyEvent& Event);

	const FContentModel* Model = nullptr;
	FOnFolder OnFolderPicked;
	FString Current;
	std::map<std::string, FFolderRowPtr> Known;
	TArray<FFolderRowPtr> Rows;
	TSharedPtr<SListView<FFolderRowPtr>> List;
};
}
