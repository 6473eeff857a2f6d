// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Delegates/Delegate.h"

// Not in the engine: sentences for the person at the editor, one a subject. Game thread only.

namespace StandIn
{
/** How bad what a notice tells is. */
enum class ENoticeKind : uint8
{
	/** Something could not be used, and the editor goes on without it. */
	Warning,
	/** Something will be lost or does not work until a person acts. */
	Error
};

/** One plain sentence: what happened, where (file and line), why, and what to do or what was done. */
struct FNotice
{
	/** The subject; only one notice a key exists at a time. */
	FString Key;
	FString Text;
	ENoticeKind Kind = ENoticeKind::Warning;
};

DECLARE_MULTICAST_DELEGATE_OneParam(FOnNotice, const FNotice&);

/** Adds a notice and logs it as a Warning or an Error of LogNotice; does nothing while a notice with this key stands. */
CORE_API void AddNotice(const FString& Key, const FString& Text, ENoticeKind Kind = ENoticeKind::Warning);

/** The standing notices, oldest first. */
CORE_API const TArray<FNotice>& GetNotices();

/** Takes a notice away, so that the next one with its key is shown again. */
CORE_API void ClearNotice(const FString& Key);

/** Takes all notices away. */
CORE_API void ClearNotices();

/** Fires when a notice has been added. */
CORE_API FOnNotice& OnNotice();
}
