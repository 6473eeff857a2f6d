// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/SWindow.h"

// The bar above a window's content. Left out: the application's icon, minimizing, maximizing, the system menu, flashing.

/** The bar with a window's title and the button that closes it; the window is dragged by it. */
class SLATE_API SWindowTitleBar : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SWindowTitleBar) {}
	SLATE_END_ARGS()

	/** Makes the bar of a window; a center content takes the title's place. */
	void Construct(const FArguments& InArgs, const TSharedRef<SWindow>& InWindow, const TSharedPtr<SWidget>& InCenterContent,
		EHorizontalAlignment InCenterContentAlignment);

	FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;

private:
	FReply OnCloseClicked();
	FSlateColor GetTitleColor() const;

	TWeakPtr<SWindow> OwnerWindow;
	FVector2D Grabbed = FVector2D(0.0f, 0.0f);
};
