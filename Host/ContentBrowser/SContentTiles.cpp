// Copyright The Tintmill authors. All rights reserved.

#include "Host/ContentBrowser/SContentTiles.h"

namespace TintmillHost
{
void SContentTiles::SelectAll()
{
	if (ItemsSource != nullptr)
	{
		SetItemSelection(*ItemsSource, true, ESelectInfo::OnKeyPress);
	}
}

FReply SContentTiles::OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return MouseEvent.IsControlDown() ? FReply::Unhandled() : STileView<FContentItemPtr>::OnMouseWheel(MyGeometry, MouseEvent);
}
}
