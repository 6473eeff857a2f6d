// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/LookFiles.h"

#include "Containers/StringConv.h"
#include "LookBlend.h"
#include "LookFileCheck.h"
#include "Misc/Paths.h"
#include "StandIn/Notices.h"
#include "TintmillLook.h"
#include "TintmillLookAssets.h"
#include "TintmillObject.h"

#include <string>
#include <unordered_set>

namespace LookFilesPrivate
{
static FTintmillLook* LookOf(const UTintmillObject* Asset)
{
	return Asset != nullptr ? Asset->Look.Get() : nullptr;
}

static std::uint64_t NextRevision()
{
	static std::uint64_t LastRevision = 0;
	return ++LastRevision;
}

static FString FromUtf8(const std::string& Text)
{
	return FString(UTF8_TO_TCHAR(Text.c_str()));
}

/** Takes the look away. */
static void MakeUnusable(FTintmillLook& Look, const FString& Problem)
{
	Look.State = StandIn::ELookState::Unusable;
	Look.Problem = Problem;
	Look.Grader.reset();
	Look.ContentHash = 0;
	Look.Revision = NextRevision();
}

/** Takes the look away and tells the person why; a problem that has been told already is not told again. */
static void Refuse(const UTintmillObject* Asset, FTintmillLook& Look, const std::string& Sentence)
{
	const FString Problem = FromUtf8(Sentence);
	const bool bNews = Look.State != StandIn::ELookState::Unusable || !Look.Problem.Equals(Problem);
	// Whoever deletes a file knows it; a pane that shows the look still says so when it is drawn.
	const bool bDeleted = Look.State != StandIn::ELookState::None && !Look.Stamp.bExists;
	MakeUnusable(Look, Problem);
	if (bNews)
	{
		StandIn::ClearNotice(StandIn::GetLookNoticeKey(Asset));
	}
	if (bNews && !bDeleted)
	{
		StandIn::TellLookProblem(Asset);
	}
}

static void MakeReady(
	const UTintmillObject* Asset, FTintmillLook& Look, std::shared_ptr<const LookGrading::ILookGrader> Grader, std::uint64_t Hash)
{
	Look.State = StandIn::ELookState::Ready;
	Look.Problem = FString();
	Look.Grader = std::move(Grader);
	Look.ContentHash = Hash;
	Look.Revision = NextRevision();
	StandIn::ClearNotice(StandIn::GetLookNoticeKey(Asset));
}

static std::filesystem::path PathOf(const FString& FileName)
{
	return std::filesystem::path(*FPaths::ConvertRelativePathToFull(FileName));
}

/** Reads the file that the look names, whatever came of it before. */
static void ReadFile(const UTintmillObject* Asset, FTintmillLook& Look)
{
	// The stamp is taken first: what is written during the reading shows at the next poll.
	Look.Stamp = FTintmillFileStamp::Of(Look.Path);
	LookFile::FCheckedFile File;
	LookFile::FProblem Problem;
	if (!LookFile::CheckFile(Look.Path, File, Problem))
	{
		Refuse(Asset, Look, LookFile::Sentence(Look.Path, Problem));
		return;
	}
	if (Look.State == StandIn::ELookState::Ready && Look.ContentHash == File.ContentHash)
	{
		return;
	}
	std::string Reason;
	std::shared_ptr<const LookGrading::ILookGrader> Grader = LookGrading::MakeLookGrader(File, Reason);
	if (Grader == nullptr)
	{
		LookFile::Refuse(Problem, 0, Reason);
		Refuse(Asset, Look, LookFile::Sentence(Look.Path, Problem));
		return;
	}
	MakeReady(Asset, Look, std::move(Grader), File.ContentHash);
}

/** Looks at the files of the looks that are meant; returns the assets whose look is now another. */
template <typename PredicateType>
static TArray<UTintmillObject*> Poll(const PredicateType& IsMeant)
{
	TArray<UTintmillObject*> Changed;
	// A copy, for whoever hears of a notice may load another look.
	const TArray<UTintmillObject*> Assets = TintmillLookAssets::GetAll();
	for (UTintmillObject* Asset : Assets)
	{
		FTintmillLook* Look = LookOf(Asset);
		if (Look == nullptr || !IsMeant(*Look) || FTintmillFileStamp::Of(Look->Path) == Look->Stamp)
		{
			continue;
		}
		const std::uint64_t Revision = Look->Revision;
		ReadFile(Asset, *Look);
		if (Look->Revision != Revision)
		{
			Changed.Add(Asset);
		}
	}
	return Changed;
}
}

namespace StandIn
{
bool LoadLookFile(UTintmillObject* Asset, const FString& FileName)
{
	check(Asset);
	Asset->Look = MakeShared<FTintmillLook>();
	Asset->Look->FileName = FileName;
	Asset->Look->Path = LookFilesPrivate::PathOf(FileName);
	LookFilesPrivate::ReadFile(Asset, *Asset->Look);
	return Asset->Look->State == ELookState::Ready;
}

TArray<UTintmillObject*> PollLookFiles()
{
	return LookFilesPrivate::Poll([](const FTintmillLook&) { return true; });
}

TArray<UTintmillObject*> PollLookFiles(const TArray<FString>& FileNames)
{
	if (FileNames.Num() == 0)
	{
		return {};
	}
	std::unordered_set<std::filesystem::path::string_type> Paths;
	for (const FString& FileName : FileNames)
	{
		Paths.insert(LookFilesPrivate::PathOf(FileName).native());
	}
	return LookFilesPrivate::Poll([&Paths](const FTintmillLook& Look) { return Paths.count(Look.Path.native()) != 0; });
}

ELookState GetLookState(const UTintmillObject* Asset)
{
	const FTintmillLook* Look = LookFilesPrivate::LookOf(Asset);
	return Look != nullptr ? Look->State : ELookState::None;
}

uint64 GetLookRevision(const UTintmillObject* Asset)
{
	const FTintmillLook* Look = LookFilesPrivate::LookOf(Asset);
	return Look != nullptr ? Look->Revision : 0;
}

FString GetLookProblem(const UTintmillObject* Asset)
{
	const FTintmillLook* Look = LookFilesPrivate::LookOf(Asset);
	return Look != nullptr ? Look->Problem : FString();
}

void TellLookProblem(const UTintmillObject* Asset)
{
	if (GetLookState(Asset) == ELookState::Unusable)
	{
		AddNotice(GetLookNoticeKey(Asset), GetLookProblem(Asset) + TEXT("; the picture stays as it is until the file is mended."));
	}
}

FString GetLookFileName(const UTintmillObject* Asset)
{
	const FTintmillLook* Look = LookFilesPrivate::LookOf(Asset);
	return Look != nullptr ? Look->FileName : FString();
}

FString GetLookNoticeKey(const UTintmillObject* Asset)
{
	check(Asset);
	return FString(TEXT("LookFile:")) + Asset->GetPathName();
}

bool ApplyLookToPixels(const UTintmillObject* Asset, uint8* Pixels, int32 PixelCount)
{
	const FTintmillLook* Look = LookFilesPrivate::LookOf(Asset);
	if (Look == nullptr || Look->State != ELookState::Ready || PixelCount <= 0)
	{
		return false;
	}
	LookGrading::ApplyLook(
		*Look->Grader, LookGrading::FullWeight, Pixels, static_cast<std::size_t>(PixelCount), LookGrading::EByteOrder::RedFirst);
	return true;
}
}
