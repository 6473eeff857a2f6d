// Copyright The Tintmill authors. All rights reserved.

#include "LookFileNew.h"

#include "StandIn/AtomicFile.h"

#include <string>

namespace LookFile
{
const char* const NewLookExtension = "cube";

bool WriteNewLook(const FString& FileName, FString& OutReason)
{
	// The corners of the color cube, red fastest: what lies between them is interpolated.
	static const std::string Text = "# A new look: it leaves the picture as it is.\n"
									"LUT_3D_SIZE 2\n"
									"0 0 0\n1 0 0\n0 1 0\n1 1 0\n"
									"0 0 1\n1 0 1\n0 1 1\n1 1 1\n";
	return StandIn::SaveFileAtomically(FileName, Text.data(), static_cast<int64>(Text.size()), OutReason);
}
}
