// Copyright The Tintmill authors. All rights reserved.

#include "Layout/Visibility.h"

const EVisibility EVisibility::Visible(EVisibility::VIS_Visible);
const EVisibility EVisibility::Collapsed(EVisibility::VIS_Collapsed);
const EVisibility EVisibility::Hidden(EVisibility::VIS_Hidden);
const EVisibility EVisibility::HitTestInvisible(EVisibility::VIS_HitTestInvisible);
const EVisibility EVisibility::SelfHitTestInvisible(EVisibility::VIS_SelfHitTestInvisible);
const EVisibility EVisibility::All(EVisibility::VIS_All);

FString EVisibility::ToString() const
{
	switch (Value)
	{
	case VIS_Visible:
		return TEXT("Visible");
	case VIS_Collapsed:
		return TEXT("Collapsed");
	case VIS_Hidden:
		return TEXT("Hidden");
	case VIS_HitTestInvisible:
		return TEXT("HitTestInvisible");
	case VIS_SelfHitTestInvisible:
		return TEXT("SelfHitTestInvisible");
	default:
		return TEXT("All");
	}
}
