// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

// The list of keys.

namespace TintmillHost
{
class FFrameCommands;

/** The keys of the window's commands, in two columns. Escape and Enter close the window that it is in. */
class SShortcuts : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SShortcuts) {}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const FFrameCommands& Commands);

	/** Opens a window with the list over another one, in its middle; one that is open comes to the front. */
	static void Open(const FFrameCommands& Commands, const TSharedRef<SWindow>& Parent);

	virtual bool SupportsKeyboardFocus() const override { return true; }
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

private:
	FReply OnClose();
};
}
