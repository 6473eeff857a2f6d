// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "LookFileCheck.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>

// What turns colors into graded colors, and who makes it. Makers register themselves by merely being linked in, so that a
// platform can leave out those whose library it does not have. Standard library only.

namespace LookGrading
{
/** Rank of makers that read every format with the help of a library. */
constexpr int LibraryRank = 0;

/** Rank of makers for formats whose tables are at hand already. */
constexpr int TableRank = 10;

/** In which order a pixel's four bytes stand. */
enum class EByteOrder : std::uint8_t
{
	RedFirst,
	BlueFirst
};

/** A look ready to be applied; calls from several threads at once are fine. */
class ILookGrader
{
public:
	virtual ~ILookGrader() = default;

	/** Writes the graded red, green and blue of PixelCount pixels of four bytes; alpha is copied. In and Out may be the same. */
	virtual void Grade(const std::uint8_t* In, std::uint8_t* Out, std::size_t PixelCount, EByteOrder Order) const = 0;
};

/** Makes graders from checked files. Every living maker is asked, those with the higher rank first. */
class ILookGraderMaker
{
public:
	/** Enters the list of makers. */
	explicit ILookGraderMaker(int InRank);

	/** Leaves the list of makers. */
	virtual ~ILookGraderMaker();

	ILookGraderMaker(const ILookGraderMaker&) = delete;
	ILookGraderMaker& operator=(const ILookGraderMaker&) = delete;

	/** True for files that Make should be tried with. */
	virtual bool CanMake(const LookFile::FCheckedFile& File) const = 0;

	/** Returns a grader, or null with the reason as the rest of a sentence. */
	virtual std::shared_ptr<const ILookGrader> Make(const LookFile::FCheckedFile& File, std::string& OutReason) const = 0;

private:
	friend std::shared_ptr<const ILookGrader> MakeLookGrader(const LookFile::FCheckedFile& File, std::string& OutReason, int HighestRank);

	ILookGraderMaker* NextMaker;
	int Rank;
};

/** Returns a grader from the first maker, of at most the highest rank, that has one for the file; null with the reason when none has. */
std::shared_ptr<const ILookGrader> MakeLookGrader(
	const LookFile::FCheckedFile& File, std::string& OutReason, int HighestRank = std::numeric_limits<int>::max());
}
