// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/ContainersFwd.h"
#include "UObject/UObjectHierarchyFwd.h"

// Forward declarations of the module's classes.

class FArchive;
class FConfigCacheIni;
class FFeedbackContext;
class FMalloc;
class FName;
class FOutputDevice;
class FOutputDeviceRedirector;
class FString;
class FText;
struct FColor;
struct FDateTime;
struct FGuid;
struct FIntPoint;
struct FIntRect;
struct FLinearColor;
struct FRotator;
struct FTimespan;
struct FVector;
struct FVector2D;
struct FVector4;
