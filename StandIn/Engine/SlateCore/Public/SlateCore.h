// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// All of the core in one header.

#include "Application/SlateApplicationBase.h"
#include "Brushes/SlateBorderBrush.h"
#include "Brushes/SlateBoxBrush.h"
#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateImageBrush.h"
#include "Brushes/SlateNoResource.h"
#include "Fonts/FontMeasure.h"
#include "Layout/LayoutUtils.h"
#include "Layout/WidgetPath.h"
#include "Rendering/DrawElements.h"
#include "SlateGlobals.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateIconFinder.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Styling/SlateTypes.h"
#include "Textures/SlateIcon.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/IToolTip.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/SLeafWidget.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SOverlay.h"
#include "Widgets/SPanel.h"
#include "Widgets/SWidget.h"
#include "Widgets/SWindow.h"
