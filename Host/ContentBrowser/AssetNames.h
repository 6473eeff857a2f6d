// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

namespace TintmillHost
{
/** Why a new asset in a folder such as "/Game/Looks" cannot have a name, as one sentence; empty if it can. */
FText CheckNewAssetName(const FString& Folder, const FString& Name);
}
