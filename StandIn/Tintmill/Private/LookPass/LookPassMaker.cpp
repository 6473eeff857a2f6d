// Copyright The Tintmill authors. All rights reserved.

#include "LookGrader.h"

#include "LookPass/LookPassFile.h"
#include "LookPass/LookPassGrader.h"

#include <OpenColorIO/OpenColorIO.h>

#include <algorithm>
#include <exception>

namespace LookPassMakerPrivate
{
/** The one line of a message that says what is wrong, shortened: the library speaks of all its readers at length. */
static std::string TellingLine(const std::string& Message)
{
	constexpr std::size_t Longest = 160;
	static const std::string Mark = "failed with: ";
	const std::size_t At = Message.find(Mark);
	const std::string Rest = At == std::string::npos ? Message : Message.substr(At + Mark.size());
	// Where two readers know the extension, the second one's complaint follows after an indent.
	std::string Line;
	for (const char Character : Rest.substr(0, std::min(Rest.find('\n'), Rest.find("    "))))
	{
		Line += Character >= 0x20 && Character < 0x7f ? Character : ' ';
	}
	while (!Line.empty() && (Line.back() == ' ' || Line.back() == '.'))
	{
		Line.pop_back();
	}
	return Line.size() > Longest ? Line.substr(0, Longest) + "..." : Line;
}

/** Cuts the copy's path out of a message; it would mean nothing to anybody. */
static std::string WithoutPath(std::string Message, const std::string& Path)
{
	for (std::size_t At = Message.find(Path); At != std::string::npos; At = Message.find(Path))
	{
		Message.replace(At, Path.size(), "the file");
	}
	return Message;
}

static OCIO_NAMESPACE::ConstCPUProcessorRcPtr MakeProcessor(const std::string& Path)
{
	OCIO_NAMESPACE::FileTransformRcPtr Transform = OCIO_NAMESPACE::FileTransform::Create();
	Transform->setSrc(Path.c_str());
	Transform->setInterpolation(OCIO_NAMESPACE::INTERP_TETRAHEDRAL);
	return OCIO_NAMESPACE::Config::CreateRaw()->getProcessor(Transform)->getDefaultCPUProcessor();
}

/** Makes graders with OpenColorIO from every format that it reads. */
class FLookPassMaker final : public LookGrading::ILookGraderMaker
{
public:
	FLookPassMaker()
		: ILookGraderMaker(LookGrading::LibraryRank)
	{
		OCIO_NAMESPACE::SetLoggingLevel(OCIO_NAMESPACE::LOGGING_LEVEL_NONE);
	}

	virtual bool CanMake(const LookFile::FCheckedFile&) const override { return true; }

	virtual std::shared_ptr<const LookGrading::ILookGrader> Make(const LookFile::FCheckedFile& File, std::string& OutReason) const override
	{
		// The library reads files only. It gets a copy of what was checked, so that nobody can change the file in between.
		const LookPass::FLookPassFile Copy(File.Text, File.Extension);
		if (!Copy.IsWritten())
		{
			OutReason = "a copy for reading could not be written to the temporary folder; check that the disk is not full";
			return nullptr;
		}
		const std::string Path = Copy.GetPath().string();
		std::shared_ptr<const LookGrading::ILookGrader> Grader;
		try
		{
			Grader = std::make_shared<LookPass::FLookPassGrader>(MakeProcessor(Path));
		}
		catch (const std::exception& Error)
		{
			OutReason = "OpenColorIO cannot use it: " + TellingLine(WithoutPath(Error.what(), Path));
		}
		// The library remembers every file, failures too; the copies' names never come again.
		OCIO_NAMESPACE::ClearAllCaches();
		return Grader;
	}
};

static const FLookPassMaker Maker;
}
