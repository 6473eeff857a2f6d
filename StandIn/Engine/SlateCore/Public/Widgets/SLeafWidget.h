// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWidget.h"

// The base of widgets without children.

/** The base of widgets without children. */
class SLATECORE_API SLeafWidget : public SWidget
{
public:
	FChildren* GetChildren() override;

protected:
	/** Makes the widget. */
	SLeafWidget() {}

	void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
};
