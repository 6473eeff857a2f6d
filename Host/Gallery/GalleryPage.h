// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

// The page that shows what a run did: a picture with a caption for every step and the log, in one file that needs no other.

namespace TintmillHost
{
/** A command that a run carried out, or failed at. */
struct FGalleryCommand
{
	/** File and line, "Host/Tours/menu.tour:12"; empty if it stands in no file. */
	std::string Place;

	std::string Text;
	double Seconds = 0.0;

	/** Why it failed; empty if it did not. */
	std::string Problem;
};

/** A step of the page: pictures with a caption, and the commands that led to them. */
struct FGalleryStep
{
	std::string Chapter;
	std::string Caption;

	/** The bytes of PNG files; without one the step is only told. */
	std::string Picture;

	/** The picture before, for a slider; empty if nothing is compared. */
	std::string Without;

	std::vector<FGalleryCommand> Commands;

	/** The time of the step's commands. */
	double CountSeconds() const;

	/** What went wrong at the step's last command; empty if nothing did. */
	std::string GetProblem() const;
};

/** A line of the run's log. */
struct FGalleryLogLine
{
	/** One of "command", "output", "error", "warning", "display", "log", "verbose". */
	std::string Kind;

	std::string Text;
};

/** Collects the steps of a run and writes them as one HTML file with the pictures inside. */
class FGalleryPage
{
public:
	/** Sets the page's title in place of the one that Write is given. */
	void SetTitle(const std::string& InTitle) { Title = InTitle; }

	/** The steps that follow belong to a chapter with a heading. */
	void BeginChapter(const std::string& Heading);

	/** Adds a picture (a PNG file) with its caption. */
	void AddPicture(const std::string& Caption, const std::filesystem::path& Picture);

	/** Adds two pictures that differ by the look alone and are compared with a slider; just the one where they do not differ. */
	void AddComparison(const std::string& Caption, const std::filesystem::path& Without, const std::filesystem::path& With);

	/** Notes a command that has ended. It belongs to the pictures that it took, or to the next one. */
	void NoteCommand(const FGalleryCommand& Command);

	/** Whether there is no picture. */
	bool IsEmpty() const;

	/** The steps so far; commands that came after the last picture make a step of their own at the end. */
	std::vector<FGalleryStep> GetSteps() const;

	/** Writes the page with the log below the pictures, whole or not at all. Returns an empty string, or one sentence why it could not. */
	std::string Write(const std::filesystem::path& File, const std::string& TitleOtherwise, const std::vector<FGalleryLogLine>& Log) const;

	/** Writes what was collected, for another run to go on with. */
	void Save(std::ostream& Stream) const;

	/** Reads what Save wrote, in place of what was collected; false if the stream holds something else. */
	bool Load(std::istream& Stream);

private:
	void AddStep(FGalleryStep Step);

	std::string Title;
	std::string Chapter;
	std::vector<FGalleryStep> Steps;

	/** Commands since the last picture. */
	std::vector<FGalleryCommand> Pending;

	/** The first step that the command which runs has added; as many as there are steps if it has added none. */
	size_t FirstNewStep = 0;
};
}
