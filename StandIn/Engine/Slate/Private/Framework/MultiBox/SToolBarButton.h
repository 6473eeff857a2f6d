// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/MultiBox/ToolBarBlocks.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/SCompoundWidget.h"

/** The button of a block in a tool bar: an icon above a caption, or an arrow alone. */
class SToolBarButton : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SToolBarButton) {}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const TSharedRef<const FToolBarButtonBlock>& InBlock);

private:
	TSharedRef<SWidget> MakeContent();
	FReply OnClicked();
	bool IsActionEnabled() const;
	EVisibility GetButtonVisibility() const;
	const FSlateBrush* GetIconBrush() const;
	const FSlateBrush* GetCheckedBrush() const;
	FSlateColor GetForeground() const;

	TSharedPtr<const FToolBarButtonBlock> Block;
	TSharedPtr<SComboButton> Combo;
};
