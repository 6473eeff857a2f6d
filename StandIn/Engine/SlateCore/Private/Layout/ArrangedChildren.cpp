// Copyright The Tintmill authors. All rights reserved.

#include "Layout/ArrangedChildren.h"
#include "Widgets/SWidget.h"

FArrangedChildren::FArrangedChildren(EVisibility InVisibilityFilter, bool /*bInAllow3DWidgets*/)
	: VisibilityFilter(InVisibilityFilter)
{}

void FArrangedChildren::AddWidget(const FArrangedWidget& InWidgetGeometry)
{
	AddWidget(InWidgetGeometry.Widget->GetVisibility(), InWidgetGeometry);
}

void FArrangedChildren::AddWidget(EVisibility VisibilityOverride, const FArrangedWidget& InWidgetGeometry)
{
	if (Accepts(VisibilityOverride))
	{
		Array.Add(InWidgetGeometry);
	}
}

void FArrangedChildren::InsertWidget(EVisibility VisibilityOverride, const FArrangedWidget& InWidgetGeometry, int32 Index)
{
	if (Accepts(VisibilityOverride))
	{
		Array.Insert(InWidgetGeometry, Index);
	}
}
