// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "LookGrader.h"
#include "StandIn/LookFiles.h"

#include <cstdint>
#include <filesystem>
#include <memory>

/** What tells whether a file is still the one that was read, without reading it. */
struct FTintmillFileStamp
{
	bool bExists = false;

	/** In bytes. */
	std::uint64_t Size = 0;

	/** When it was changed last, in the smallest unit that the system counts in: the C++ library counts whole seconds on Windows. */
	std::int64_t Time = 0;

	/** The stamp of a file as it is now. */
	static FTintmillFileStamp Of(const std::filesystem::path& Path);

	bool operator==(const FTintmillFileStamp& Other) const { return bExists == Other.bExists && Size == Other.Size && Time == Other.Time; }
};

/** The look of one asset, as its file gave it. */
struct FTintmillLook
{
	/** The file as it was named, and where it is. */
	FString FileName;
	std::filesystem::path Path;

	/** The file as it was just before it was read. */
	FTintmillFileStamp Stamp;

	StandIn::ELookState State = StandIn::ELookState::None;

	/** Why the file cannot be used; empty unless State is Unusable. */
	FString Problem;

	/** Of the content that Grader was made from. */
	std::uint64_t ContentHash = 0;

	/** Null unless State is Ready. */
	std::shared_ptr<const LookGrading::ILookGrader> Grader;

	/** Differs for any two looks that were ever made in this process; 0 while there is none. */
	std::uint64_t Revision = 0;
};
