// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/ContentBrowser/ContentItem.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Views/STableRow.h"

class SEditableTextBox;

// One tile: a plate with the picture and the name below it, or the box in which a new asset's name is typed.

namespace TintmillHost
{
/** One tile of the content browser. */
class SContentTile : public STableRow<FContentItemPtr>
{
public:
	SLATE_BEGIN_ARGS(SContentTile)
		: _ThumbnailSize(80.0f)
	{}
	SLATE_ARGUMENT(FContentItemPtr, Item)
	SLATE_ATTRIBUTE(float, ThumbnailSize)

	/** What is told of every change of a new asset's name. */
	SLATE_EVENT(FOnTextChanged, OnNameChanged)

	/** What is told of a new asset's name that was typed. */
	SLATE_EVENT(FOnTextCommitted, OnNameCommitted)

	/** What sees the keys that go to a new asset's name first. */
	SLATE_EVENT(FOnKeyDown, OnNameKeyDown)
	SLATE_END_ARGS()

	/** Takes the arguments and the view that the tile is in. */
	void Construct(const FArguments& InArgs, const TSharedRef<STableViewBase>& Owner);

	/** What the tile shows. */
	const FContentItemPtr& GetItem() const { return Item; }

	/** The box in which the name is typed; null if it is not. */
	TSharedPtr<SEditableTextBox> GetNameBox() const { return NameBox; }

private:
	TSharedRef<SWidget> MakeName(const FArguments& InArgs);
	const FSlateBrush* GetPlate() const;
	FLinearColor GetNameColor() const;
	FOptionalSize GetThumbnailLength() const;

	FContentItemPtr Item;
	TAttribute<float> ThumbnailSize;
	TSharedPtr<SEditableTextBox> NameBox;
};
}
