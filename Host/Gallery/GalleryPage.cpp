// Copyright The Tintmill authors. All rights reserved.

#include "Host/Gallery/GalleryPage.h"

#include "Host/Gallery/GalleryHtml.h"
#include "Host/Gallery/Packing.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iterator>

namespace TintmillHost
{
namespace
{
std::string ReadBytes(const std::filesystem::path& File)
{
	std::ifstream Stream(File, std::ios::binary);
	return std::string((std::istreambuf_iterator<char>(Stream)), std::istreambuf_iterator<char>());
}

std::string CannotWrite(const std::filesystem::path& File, const std::string& Reason)
{
	return "Cannot write the page " + File.string() + ": " + Reason + ". Choose another folder with --out.";
}
}

double FGalleryStep::CountSeconds() const
{
	double Seconds = 0.0;
	for (const FGalleryCommand& Command : Commands)
	{
		Seconds += Command.Seconds;
	}
	return Seconds;
}

std::string FGalleryStep::GetProblem() const
{
	return Commands.empty() ? std::string() : Commands.back().Problem;
}

void FGalleryPage::BeginChapter(const std::string& Heading)
{
	Chapter = Heading;
}

void FGalleryPage::AddPicture(const std::string& Caption, const std::filesystem::path& Picture)
{
	AddStep({Chapter, Caption, ReadBytes(Picture), {}, {}});
}

void FGalleryPage::AddComparison(const std::string& Caption, const std::filesystem::path& Without, const std::filesystem::path& With)
{
	AddStep({Chapter, Caption, ReadBytes(With), ReadBytes(Without), {}});
}

void FGalleryPage::NoteCommand(const FGalleryCommand& Command)
{
	Pending.push_back(Command);
	if (FirstNewStep < Steps.size())
	{
		Steps[FirstNewStep].Commands = std::move(Pending);
		Pending.clear();
		FirstNewStep = Steps.size();
	}
}

bool FGalleryPage::IsEmpty() const
{
	return std::none_of(Steps.begin(), Steps.end(), [](const FGalleryStep& Step) { return !Step.Picture.empty(); });
}

std::vector<FGalleryStep> FGalleryPage::GetSteps() const
{
	std::vector<FGalleryStep> All = Steps;
	if (!Pending.empty())
	{
		All.push_back({Chapter, {}, {}, {}, Pending});
	}
	return All;
}

std::string FGalleryPage::Write(
	const std::filesystem::path& File, const std::string& TitleOtherwise, const std::vector<FGalleryLogLine>& Log) const
{
	std::error_code Error;
	if (File.has_parent_path())
	{
		std::filesystem::create_directories(File.parent_path(), Error);
	}
	std::filesystem::path Unfinished = File;
	Unfinished += ".new";
	{
		std::ofstream Page(Unfinished, std::ios::binary);
		WriteGalleryHtml(Page, Title.empty() ? TitleOtherwise : Title, GetSteps(), Log);
		Page.flush();
		if (!Page)
		{
			const std::string Reason = std::strerror(errno);
			Page.close();
			std::filesystem::remove(Unfinished, Error);
			return CannotWrite(File, Reason);
		}
	}
	std::filesystem::rename(Unfinished, File, Error);
	return Error ? CannotWrite(File, Error.message()) : std::string();
}

void FGalleryPage::Save(std::ostream& Stream) const
{
	PackText(Stream, Title);
	PackText(Stream, Chapter);
	const std::vector<FGalleryStep> All = GetSteps();
	PackNumber(Stream, static_cast<double>(All.size()));
	for (const FGalleryStep& Step : All)
	{
		for (const std::string* const Text : {&Step.Chapter, &Step.Caption, &Step.Picture, &Step.Without})
		{
			PackText(Stream, *Text);
		}
		PackNumber(Stream, static_cast<double>(Step.Commands.size()));
		for (const FGalleryCommand& Command : Step.Commands)
		{
			for (const std::string* const Text : {&Command.Place, &Command.Text, &Command.Problem})
			{
				PackText(Stream, *Text);
			}
			PackNumber(Stream, Command.Seconds);
		}
	}
}

bool FGalleryPage::Load(std::istream& Stream)
{
	FGalleryPage Page;
	Page.Title = UnpackText(Stream);
	Page.Chapter = UnpackText(Stream);
	const double StepCount = UnpackNumber(Stream);
	for (double StepIndex = 0.0; Stream && StepIndex < StepCount; ++StepIndex)
	{
		FGalleryStep Step;
		for (std::string* const Text : {&Step.Chapter, &Step.Caption, &Step.Picture, &Step.Without})
		{
			*Text = UnpackText(Stream);
		}
		const double CommandCount = UnpackNumber(Stream);
		for (double CommandIndex = 0.0; Stream && CommandIndex < CommandCount; ++CommandIndex)
		{
			FGalleryCommand Command;
			for (std::string* const Text : {&Command.Place, &Command.Text, &Command.Problem})
			{
				*Text = UnpackText(Stream);
			}
			Command.Seconds = UnpackNumber(Stream);
			Step.Commands.push_back(std::move(Command));
		}
		Page.Steps.push_back(std::move(Step));
	}
	if (!Stream)
	{
		return false;
	}
	// What came after the last picture still waits for the next one.
	if (!Page.Steps.empty() && Page.Steps.back().Picture.empty() && Page.Steps.back().Caption.empty())
	{
		Page.Pending = std::move(Page.Steps.back().Commands);
		Page.Steps.pop_back();
	}
	Page.FirstNewStep = Page.Steps.size();
	*this = std::move(Page);
	return true;
}

void FGalleryPage::AddStep(FGalleryStep Step)
{
	Steps.push_back(std::move(Step));
}
}
