// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/ContentBrowser/SFolderTree.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SHorizontalBox;

namespace TintmillHost
{
/** The path of the shown folder as a row of buttons, one for each folder on the way to it. */
class SBreadcrumbs : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SBreadcrumbs) { _Clipping = EWidgetClipping::ClipToBounds; }

	/** What is told of the folder whose button was clicked. */
	SLATE_EVENT(FOnFolder, OnFolderPicked)
	SLATE_END_ARGS()

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs);

	/** Shows the way to a folder. */
	void ShowFolder(const FString& Path);

private:
	FReply OnClicked(FString Path);

	FOnFolder OnFolderPicked;
	TSharedPtr<SHorizontalBox> Row;
};
}
