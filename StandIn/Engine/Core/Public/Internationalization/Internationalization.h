// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Internationalization/Text.h"

// The macros by which source code names its texts. Their arguments are plain literals, without TEXT.

/** A text under LOCTEXT_NAMESPACE, which the file defines before and undefines at its end. */
#define LOCTEXT(InKey, InTextLiteral) NSLOCTEXT(LOCTEXT_NAMESPACE, InKey, InTextLiteral)

/** A text under the given namespace and key. */
#define NSLOCTEXT(InNamespace, InKey, InTextLiteral) FText::MakeLocalizable(TEXT(InTextLiteral), TEXT(InNamespace), TEXT(InKey))

/** A text that is the same in every culture. */
#define INVTEXT(InTextLiteral) FText::AsCultureInvariant(FString(TEXT(InTextLiteral)))
