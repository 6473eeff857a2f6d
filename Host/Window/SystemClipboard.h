// Copyright The Tintmill authors. All rights reserved.

#pragma once

// The clipboard that all programs share.

namespace TintmillHost
{
/** Text fields copy to and paste from the system's clipboard while it lives. */
class FSystemClipboard
{
public:
	FSystemClipboard();
	~FSystemClipboard();
	FSystemClipboard(const FSystemClipboard&) = delete;
	FSystemClipboard& operator=(const FSystemClipboard&) = delete;
};
}
