// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/MultiBox/MultiBox.h"

/** Block of a section's heading. */
class FHeadingBlock : public FMultiBlock
{
public:
	FHeadingBlock(const FName InExtensionHook, const TAttribute<FText>& InHeadingText)
		: FMultiBlock(EMultiBlockType::Heading, InExtensionHook)
		, HeadingText(InHeadingText)
	{}

	virtual TSharedRef<SWidget> MakeWidget(const TSharedRef<SMultiBoxWidget>& InOwnerMultiBoxWidget) const override;

private:
	TAttribute<FText> HeadingText;
};

/** Block of a thin line. */
class FSeparatorBlock : public FMultiBlock
{
public:
	explicit FSeparatorBlock(const FName InExtensionHook)
		: FMultiBlock(EMultiBlockType::Separator, InExtensionHook)
	{}

	virtual TSharedRef<SWidget> MakeWidget(const TSharedRef<SMultiBoxWidget>& InOwnerMultiBoxWidget) const override;
};

/** Block of a widget with a label in front. */
class FWidgetBlock : public FMultiBlock
{
public:
	FWidgetBlock(const TSharedRef<SWidget>& InContent, const FText& InLabel, const bool bInNoIndent)
		: FMultiBlock(EMultiBlockType::Widget, NAME_None)
		, Content(InContent)
		, Label(InLabel)
		, bNoIndent(bInNoIndent)
	{}

	virtual TSharedRef<SWidget> MakeWidget(const TSharedRef<SMultiBoxWidget>& InOwnerMultiBoxWidget) const override;

private:
	TSharedRef<SWidget> Content;
	FText Label;
	bool bNoIndent;
};
