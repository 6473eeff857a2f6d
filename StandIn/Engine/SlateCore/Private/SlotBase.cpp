// Copyright The Tintmill authors. All rights reserved.

#include "SlotBase.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"

FSlotBase::FSlotBase()
	: RawParentPtr(nullptr)
	, Widget(SNullWidget::NullWidget)
{}

FSlotBase::FSlotBase(const TSharedRef<SWidget>& InWidget)
	: RawParentPtr(nullptr)
	, Widget(InWidget)
{}

FSlotBase::~FSlotBase()
{
	DetatchParentFromContent();
}

const TSharedPtr<SWidget> FSlotBase::DetachWidget()
{
	if (Widget == SNullWidget::NullWidget)
	{
		return TSharedPtr<SWidget>();
	}
	DetatchParentFromContent();
	const TSharedRef<SWidget> MyExWidget = Widget;
	Widget = SNullWidget::NullWidget;
	return MyExWidget;
}

void FSlotBase::AttachWidgetParent(SWidget* InParent)
{
	ensureMsgf(RawParentPtr == nullptr || RawParentPtr == InParent, TEXT("Slots should not be reassigned to different parents."));
	RawParentPtr = InParent;
	AfterContentOrOwnerAssigned();
}

void FSlotBase::DetatchParentFromContent()
{
	if (Widget != SNullWidget::NullWidget)
	{
		Widget->ConditionallyDetatchParentWidget(RawParentPtr);
	}
}

void FSlotBase::AfterContentOrOwnerAssigned()
{
	if (RawParentPtr != nullptr && Widget != SNullWidget::NullWidget)
	{
		Widget->AssignParentWidget(RawParentPtr->AsShared());
	}
}
