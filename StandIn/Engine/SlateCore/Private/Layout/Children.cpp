// Copyright The Tintmill authors. All rights reserved.

#include "Layout/Children.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"

FChildren::FChildren(SWidget* InOwner)
	: Owner(InOwner)
{}

void FChildren::AssignParent(SWidget& Child) const
{
	Child.AssignParentWidget(Owner->AsShared());
}

void FChildren::DetachParent(SWidget& Child) const
{
	Child.ConditionallyDetatchParentWidget(Owner);
}

FNoChildren FNoChildren::NoChildrenInstance;

FNoChildren::FNoChildren()
	: FChildren(nullptr)
{}

FNoChildren::FNoChildren(SWidget* InOwner)
	: FChildren(InOwner)
{}

TSharedRef<SWidget> FNoChildren::GetChildAt(int32 /*Index*/)
{
	// Nobody should be getting a child when there aren't any children.
	check(false);
	return SNullWidget::NullWidget;
}

TSharedRef<const SWidget> FNoChildren::GetChildAt(int32 /*Index*/) const
{
	// Nobody should be getting a child when there aren't any children.
	check(false);
	return SNullWidget::NullWidget;
}
