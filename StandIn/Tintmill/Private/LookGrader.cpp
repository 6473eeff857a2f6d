// Copyright The Tintmill authors. All rights reserved.

#include "LookGrader.h"

namespace LookGraderPrivate
{
/** Head of the list; constant-initialized, so that makers may register before anything else here has run. */
static LookGrading::ILookGraderMaker* FirstMaker = nullptr;
}

namespace LookGrading
{
ILookGraderMaker::ILookGraderMaker(int InRank)
	: NextMaker(nullptr)
	, Rank(InRank)
{
	ILookGraderMaker** Link = &LookGraderPrivate::FirstMaker;
	while (*Link != nullptr && (*Link)->Rank >= Rank)
	{
		Link = &(*Link)->NextMaker;
	}
	NextMaker = *Link;
	*Link = this;
}

ILookGraderMaker::~ILookGraderMaker()
{
	ILookGraderMaker** Link = &LookGraderPrivate::FirstMaker;
	while (*Link != nullptr && *Link != this)
	{
		Link = &(*Link)->NextMaker;
	}
	if (*Link == this)
	{
		*Link = NextMaker;
	}
}

std::shared_ptr<const ILookGrader> MakeLookGrader(const LookFile::FCheckedFile& File, std::string& OutReason, int HighestRank)
{
	OutReason = "this build has nothing that can apply ." + File.Extension + " files";
	for (const ILookGraderMaker* Maker = LookGraderPrivate::FirstMaker; Maker != nullptr; Maker = Maker->NextMaker)
	{
		if (Maker->Rank > HighestRank || !Maker->CanMake(File))
		{
			continue;
		}
		if (std::shared_ptr<const ILookGrader> Grader = Maker->Make(File, OutReason))
		{
			return Grader;
		}
	}
	return nullptr;
}
}
