// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/Views/SListView.h"

// Items as tiles of one size in lines, from left to right. Left out: stretching tiles to the width.

/** Items as tiles of one size in lines, from left to right. */
template <typename ItemType>
class STileView : public SListView<ItemType>
{
public:
	typedef typename SListView<ItemType>::FOnGenerateRow FOnGenerateTile;
	typedef typename SListView<ItemType>::FOnSelectionChanged FOnSelectionChanged;
	typedef typename SListView<ItemType>::FOnMouseButtonClick FOnMouseButtonClick;
	typedef typename SListView<ItemType>::FOnMouseButtonDoubleClick FOnMouseButtonDoubleClick;
	typedef typename SListView<ItemType>::FOnRowReleased FOnTileReleased;

	SLATE_BEGIN_ARGS(STileView<ItemType>)
		: _ListItemsSource(nullptr)
		, _ItemHeight(128.0f)
		, _ItemWidth(128.0f)
		, _SelectionMode(ESelectionMode::Multi)
		, _ClearSelectionOnClick(true)
		, _ConsumeMouseWheel(EConsumeMouseWheel::WhenScrollingPossible)
	{
		this->_Clipping = EWidgetClipping::ClipToBounds;
	}
	SLATE_EVENT(FOnGenerateTile, OnGenerateTile)
	SLATE_EVENT(FOnTileReleased, OnTileReleased)
	SLATE_EVENT(FOnTableViewScrolled, OnTileViewScrolled)
	SLATE_ARGUMENT(const TArray<ItemType>*, ListItemsSource)
	SLATE_ATTRIBUTE(float, ItemHeight)
	SLATE_ATTRIBUTE(float, ItemWidth)
	SLATE_EVENT(FOnContextMenuOpening, OnContextMenuOpening)
	SLATE_EVENT(FOnMouseButtonClick, OnMouseButtonClick)
	SLATE_EVENT(FOnMouseButtonDoubleClick, OnMouseButtonDoubleClick)
	SLATE_EVENT(FOnSelectionChanged, OnSelectionChanged)
	SLATE_ATTRIBUTE(ESelectionMode::Type, SelectionMode)
	SLATE_ARGUMENT(bool, ClearSelectionOnClick)
	SLATE_ARGUMENT(TSharedPtr<SScrollBar>, ExternalScrollbar)
	SLATE_ARGUMENT(EConsumeMouseWheel, ConsumeMouseWheel)
	SLATE_EVENT(FOnKeyDown, OnKeyDownHandler)
	SLATE_END_ARGS()

	/** Makes a tile view. */
	STileView()
		: SListView<ItemType>(ETableViewMode::Tile)
	{}

	/** Takes the arguments. */
	void Construct(const FArguments& InArgs)
	{
		typename SListView<ItemType>::FArguments ListArguments;
		ListArguments.OnGenerateRow(InArgs._OnGenerateTile)
			.OnRowReleased(InArgs._OnTileReleased)
			.ListItemsSource(InArgs._ListItemsSource)
			.OnMouseButtonClick(InArgs._OnMouseButtonClick)
			.OnMouseButtonDoubleClick(InArgs._OnMouseButtonDoubleClick)
			.OnSelectionChanged(InArgs._OnSelectionChanged)
			.SelectionMode(InArgs._SelectionMode)
			.ClearSelectionOnClick(InArgs._ClearSelectionOnClick)
			.OnKeyDownHandler(InArgs._OnKeyDownHandler);
		this->TakeArguments(ListArguments);
		this->ConstructChildren(InArgs._ItemWidth, InArgs._ItemHeight, InArgs._ExternalScrollbar, InArgs._OnContextMenuOpening,
			InArgs._OnTileViewScrolled, InArgs._ConsumeMouseWheel);
	}
};
