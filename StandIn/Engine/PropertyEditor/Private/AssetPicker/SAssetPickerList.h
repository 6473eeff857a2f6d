// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "AssetRegistry/AssetData.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

/** List of assets that draws only the rows that are seen: thumbnail with the type's colour, name, type. */
class SAssetPickerList : public SLeafWidget
{
public:
	/** An asset was chosen by a click. */
	DECLARE_DELEGATE_OneParam(FOnChosen, const FAssetData&);

	/** One asset of the list. */
	struct FItem
	{
		FAssetData Asset;
		FString Label;
	};

	SLATE_BEGIN_ARGS(SAssetPickerList) {}
	SLATE_EVENT(FOnChosen, OnChosen)
	SLATE_END_ARGS()

	SAssetPickerList();

	void Construct(const FArguments& InArgs);

	/** Sets all assets; they are shown in alphabetical order. */
	void SetItems(TArray<FItem> InItems);

	/** Shows only assets whose name has all the words of a text; the selected one stays selected if it is still shown. */
	void SetSearchText(const FString& InText);

	/** Selects an asset and scrolls to it; unknown ones select nothing. */
	void SelectAsset(const FAssetData& Asset);

	/** Selects by moving Step rows on; from nothing to the first or last row. */
	void MoveSelection(const int32 Step);

	/** The selected asset, or invalid data. */
	FAssetData GetSelectedAsset() const;

	/** The assets shown. */
	int32 GetNumShown() const { return Shown.Num(); }

	/** An asset shown. */
	const FItem& GetShownItem(const int32 Index) const { return Items[Shown[Index]]; }

	/** Index of the selected asset among the shown ones, or INDEX_NONE. */
	int32 GetSelectedIndex() const { return SelectedIndex; }

	/** Rows that fit into the list at a time, at least one. */
	int32 GetNumRowsPerPage() const;

	/** Centre of a row in desktop pixels. */
	FVector2D GetRowCentre(const int32 Index) const;

	/** True if a row's centre is inside the list. */
	bool IsRowVisible(const int32 Index) const;

	/** Scrolls just so far that a row is visible. */
	void ScrollTo(const int32 Index);

	/** Name of an asset's type for people. */
	static FString GetTypeLabel(const FAssetData& Asset);

	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
		FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseLeave(const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;

private:
	int32 PaintRow(const int32 Index, const FVector2D& Position, const FVector2D& Size, const FGeometry& AllottedGeometry,
		FSlateWindowElementList& OutDrawElements, int32 LayerId) const;
	int32 GetRowAt(const FGeometry& MyGeometry, const FVector2D& ScreenPosition) const;
	float GetViewHeight() const;
	float GetContentHeight() const;
	float GetMaxOffset() const;
	bool NeedsScrollBar() const { return GetMaxOffset() > 0.0f; }
	void SetOffset(const float InOffset);
	void DragScrollBar(const FGeometry& MyGeometry, const FVector2D& ScreenPosition);
	void Refilter();
	FText GetHoveredText() const;

	TArray<FItem> Items;
	TArray<FString> SearchKeys;
	TArray<int32> Shown;
	FString SearchText;
	FOnChosen OnChosen;
	int32 SelectedIndex;
	int32 HoveredIndex;
	int32 PressedIndex;
	int32 PendingScrollIndex;
	float Offset;
	bool bDraggingScrollBar;
};
