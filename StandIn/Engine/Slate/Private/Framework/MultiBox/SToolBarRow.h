// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/MultiBox/MultiBox.h"
#include "Layout/Children.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

/** The blocks of a tool bar side by side; those without room are in the menu of an arrow at the end. */
class SToolBarRow : public SPanel
{
public:
	SLATE_BEGIN_ARGS(SToolBarRow) {}
	SLATE_END_ARGS()

	SToolBarRow();

	void Construct(const FArguments& InArgs, const TSharedRef<SMultiBoxWidget>& InOwner);

	virtual FChildren* GetChildren() override { return &Children; }

protected:
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	/** A place in the row. */
	class FSlot : public TSlotBase<FSlot>
	{};

	/** Number of blocks that fit into a width, from the left. */
	int32 CountFitting(const float Width) const;
	float GetBlocksWidth() const;
	TSharedRef<SWidget> MakeMenuOfTheRest();

	/** The blocks' widgets, and at last the arrow. */
	TPanelChildren<FSlot> Children;
	TArray<TSharedRef<const FMultiBlock>> Blocks;
};
