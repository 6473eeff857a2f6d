// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Input/Reply.h"
#include "Types/SlateEnums.h"

class SWidget;
struct FPointerEvent;
struct FGeometry;
enum class ECheckBoxState : uint8;

// Delegates that several widgets share.

DECLARE_DELEGATE_RetVal(FReply, FOnClicked)
DECLARE_DELEGATE_RetVal(TSharedRef<SWidget>, FOnGetContent)
DECLARE_DELEGATE_OneParam(FOnCheckStateChanged, ECheckBoxState)
DECLARE_DELEGATE_OneParam(FOnTextChanged, const FText&)
DECLARE_DELEGATE_TwoParams(FOnTextCommitted, const FText&, ETextCommit::Type)
DECLARE_DELEGATE_OneParam(FOnFloatValueChanged, float)
DECLARE_DELEGATE_OneParam(FOnUserScrolled, float)
DECLARE_DELEGATE_RetVal_TwoParams(FReply, FOnKeyDown, const FGeometry&, const FKeyEvent&)
