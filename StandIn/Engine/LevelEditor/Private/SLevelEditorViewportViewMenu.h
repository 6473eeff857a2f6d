// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "SEditorViewportViewMenu.h"

class SLevelViewport;

/** Button that opens the View menu of a level viewport. */
class SLevelEditorViewportViewMenu : public SEditorViewportViewMenu
{
public:
	SLATE_BEGIN_ARGS(SLevelEditorViewportViewMenu) {}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, TSharedRef<SLevelViewport> InViewport, TSharedRef<SViewportToolBar> InParentToolBar);

	/** Adds the content that only level viewports have. */
	void FillLevelSections(UToolMenu* Menu) const;

protected:
	virtual void RegisterMenus() const override;
};
