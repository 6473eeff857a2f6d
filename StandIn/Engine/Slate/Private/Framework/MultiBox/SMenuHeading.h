// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

/** Heading of a menu section: small grey text. */
class SMenuHeading : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SMenuHeading) {}
	SLATE_ATTRIBUTE(FText, Text)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	/** The heading as it reads now. */
	FText GetText() const { return Text.Get(); }

private:
	TAttribute<FText> Text;
};
