// Copyright The Tintmill authors. All rights reserved.

// The brushes are written in their headers alone. Where a library exports only what one of its own sources has seen, this is the one.

#include "Brushes/SlateBorderBrush.h"
#include "Brushes/SlateBoxBrush.h"
#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateImageBrush.h"
#include "Brushes/SlateNoResource.h"
