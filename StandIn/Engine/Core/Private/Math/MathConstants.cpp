// Copyright The Tintmill authors. All rights reserved.

#include "Math/IntPoint.h"
#include "Math/Vector.h"
#include "Math/Vector2D.h"

const FIntPoint FIntPoint::ZeroValue(0, 0);
const FIntPoint FIntPoint::NoneValue(INDEX_NONE, INDEX_NONE);
const FVector2D FVector2D::ZeroVector(0.0f, 0.0f);
const FVector2D FVector2D::UnitVector(1.0f, 1.0f);
const FVector FVector::ZeroVector(0.0f, 0.0f, 0.0f);
