// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/SLeafWidget.h"
#include "Layout/ArrangedChildren.h"

FChildren* SLeafWidget::GetChildren()
{
	return &FNoChildren::NoChildrenInstance;
}

void SLeafWidget::OnArrangeChildren(const FGeometry& /*AllottedGeometry*/, FArrangedChildren& /*ArrangedChildren*/) const {}
