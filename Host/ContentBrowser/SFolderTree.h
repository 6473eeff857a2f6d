// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/ContentBrowser/ContentModel.h"
#include "Host/ContentBrowser/SFolderRow.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/Views/SListView.h"

#include <map>
#include <string>

// The tree of folders at the left of the content browser: a list of the folders whose parents are expanded.

namespace TintmillHost
{
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
