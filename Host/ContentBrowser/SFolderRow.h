// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Views/STableRow.h"

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
}
