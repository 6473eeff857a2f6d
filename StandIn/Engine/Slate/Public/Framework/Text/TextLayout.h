// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// How lines of text lie in a widget. Left out: the layout engine; see StandIn/TextLines.h for what breaks lines here.

namespace ETextJustify
{
/** Where lines lie. */
enum Type
{
	Left,
	Center,
	Right
};
}
