// Copyright The Tintmill authors. All rights reserved.

#include "Host/Gallery/GalleryHtml.h"

#include "Host/Gallery/GalleryPictures.h"
#include "Host/Gallery/GalleryStyle.h"
#include "Host/Gallery/HtmlText.h"
#include "Host/Program/Progress.h"

#include <algorithm>
#include <map>
#include <sstream>

namespace TintmillHost
{
namespace
{
/** Browsers stay quick with so many lines; of more the last ones are shown. */
constexpr size_t MaxLogLines = 20000;

/** Kinds of log lines in the order of their filter boxes, and what the boxes read. */
constexpr std::pair<const char*, const char*> LogKinds[] = {{"command", "commands"}, {"output", "output"}, {"error", "errors"},
	{"warning", "warnings"}, {"display", "display"}, {"log", "log"}, {"verbose", "verbose"}};

/** "1 picture", "3 pictures". */
std::string Count(size_t Number, const std::string& Noun)
{
	return std::to_string(Number) + " " + Noun + (Number == 1 ? "" : "s");
}

/** A share of a length for a style, in percent. */
std::string Percent(double Part, double Whole)
{
	std::ostringstream Text;
	Text.precision(7);
	Text << 100.0 * Part / Whole << '%';
	return Text.str();
}

/** A part fills its share of the picture below; both scale together. */
void WritePicture(std::ostream& Page, const FGalleryPicture& Picture, const std::string& Alternative, const char* MoreClasses = "")
{
	Page << "<span class=\"pic p" << Picture.Whole << MoreClasses << "\" role=\"img\" aria-label=\"" << EscapeHtml(Alternative)
		 << "\" style=\"aspect-ratio:" << Picture.Width << "/" << Picture.Height << "\">";
	for (const FGalleryPart& Part : Picture.Parts)
	{
		const FIntRect& Area = Part.Area;
		Page << "<span class=\"part p" << Part.Number << "\" style=\"left:" << Percent(Area.Min.X, Picture.Width)
			 << ";top:" << Percent(Area.Min.Y, Picture.Height) << ";width:" << Percent(Area.Width(), Picture.Width)
			 << ";height:" << Percent(Area.Height(), Picture.Height) << "\"></span>";
	}
	Page << "</span>";
}

void WriteShown(std::ostream& Page, const FGalleryStep& Step, const FGalleryPicture& Picture, const FGalleryPicture& Without)
{
	const std::string Caption = Step.Caption.empty() ? "A picture of the run" : Step.Caption;
	Page << "<div class=\"shown\" data-width=\"" << Picture.Width << "\" data-height=\"" << Picture.Height << "\">";
	if (Without.IsValid() && !(Without == Picture))
	{
		Page << "<div class=\"compare\" style=\"--at:50%\">";
		WritePicture(Page, Without, "Without the look: " + Caption);
		WritePicture(Page, Picture, "With the look: " + Caption, " with");
		Page
			<< "<i></i><b>without the look</b><b>with the look</b>"
			<< "<input type=\"range\" aria-label=\"Where the picture without the look ends\" min=\"0\" max=\"100\" step=\"0.1\" value=\"50\"/>"
			<< "</div>";
	}
	else
	{
		WritePicture(Page, Picture, Caption);
	}
	Page << "<button type=\"button\" class=\"enlarge\" title=\"Enlarge\" aria-label=\"Enlarge: " << EscapeHtml(Caption)
		 << "\">&#x2922;</button></div>";
}

void WriteCommands(std::ostream& Page, const std::vector<FGalleryCommand>& Commands)
{
	if (Commands.empty())
	{
		return;
	}
	Page << "<details><summary>" << Count(Commands.size(), "command") << "</summary><ol>";
	for (const FGalleryCommand& Command : Commands)
	{
		Page << "<li" << (Command.Place.empty() ? std::string() : " title=\"" + EscapeHtml(Command.Place) + "\"") << "><code>"
			 << EscapeHtml(Command.Text) << "</code> <time>" << DescribeSeconds(Command.Seconds) << "</time></li>";
	}
	Page << "</ol></details>";
}

void WriteStep(std::ostream& Page, size_t Number, const FGalleryStep& Step, const FGalleryPicture& Picture, const FGalleryPicture& Without)
{
	const std::string Problem = Step.GetProblem();
	Page << "<figure id=\"step-" << Number << "\" class=\"step" << (Problem.empty() ? "" : " failed") << "\">";
	if (Picture.IsValid())
	{
		WriteShown(Page, Step, Picture, Without);
	}
	Page << "<figcaption><p><a class=\"number\" href=\"#step-" << Number << "\">" << Number << "</a> <span class=\"caption\">"
		 << EscapeHtml(!Step.Caption.empty() ? Step.Caption
					: Problem.empty()        ? "After the last picture"
											 : "The run ended here")
		 << "</span> <time>" << DescribeSeconds(Step.CountSeconds()) << "</time></p>";
	if (!Problem.empty())
	{
		Page << "<p class=\"problem\">" << EscapeHtml(Problem) << "</p>";
	}
	WriteCommands(Page, Step.Commands);
	Page << "</figcaption></figure>\n";
}

void WriteFacts(std::ostream& Page, const std::vector<FGalleryStep>& Steps, const std::vector<FGalleryLogLine>& Log)
{
	size_t Pictures = 0;
	size_t Commands = 0;
	double Seconds = 0.0;
	for (const FGalleryStep& Step : Steps)
	{
		Pictures += Step.Picture.empty() ? 0 : 1;
		Commands += Step.Commands.size();
		Seconds += Step.CountSeconds();
	}
	const auto CountKind = [&Log](const char* Kind) {
		return static_cast<size_t>(
			std::count_if(Log.begin(), Log.end(), [Kind](const FGalleryLogLine& Line) { return Line.Kind == Kind; }));
	};
	Page << "<p class=\"facts\"><span>" << Count(Pictures, "picture") << "</span><span>" << Count(Commands, "command") << "</span><span>"
		 << DescribeSeconds(Seconds) << "</span><span><a href=\"#log\">" << Count(CountKind("warning"), "warning") << ", "
		 << Count(CountKind("error"), "error") << "</a></span></p>\n";
}

void WriteLog(std::ostream& Page, const std::vector<FGalleryLogLine>& Log)
{
	std::map<std::string, size_t> Numbers;
	for (const FGalleryLogLine& Line : Log)
	{
		++Numbers[Line.Kind];
	}
	Page
		<< "<section id=\"log\"><h2>Log</h2>\n<div class=\"filter\"><input type=\"search\" placeholder=\"Filter\" aria-label=\"Filter the log\"/>";
	for (const auto& [Kind, Name] : LogKinds)
	{
		if (Numbers.count(Kind) > 0)
		{
			Page << "<label class=\"" << Kind << "\"><input type=\"checkbox\" checked=\"checked\" value=\"" << Kind << "\"/>" << Name << " "
				 << Numbers[Kind] << "</label>";
		}
	}
	Page << "<output></output></div>\n<ol class=\"lines\">";
	const size_t First = Log.size() > MaxLogLines ? Log.size() - MaxLogLines : 0;
	if (First > 0)
	{
		Page << "<li class=\"log\">(" << First << " earlier lines are left out)</li>\n";
	}
	for (size_t Index = First; Index < Log.size(); ++Index)
	{
		Page << "<li class=\"" << EscapeHtml(Log[Index].Kind) << "\">" << EscapeHtml(Log[Index].Text) << "</li>\n";
	}
	Page << "</ol></section>\n";
}
}

void WriteGalleryHtml(
	std::ostream& Page, const std::string& Title, const std::vector<FGalleryStep>& Steps, const std::vector<FGalleryLogLine>& Log)
{
	FProgress Progress("Writing the page", static_cast<int64_t>(Steps.size()));
	FGalleryPictures Pictures;
	std::ostringstream Body;
	std::string Chapter;
	bool bInChapter = false;
	for (size_t Index = 0; Index < Steps.size(); ++Index)
	{
		const FGalleryStep& Step = Steps[Index];
		if (!bInChapter || Step.Chapter != Chapter)
		{
			Body << (bInChapter ? "</section>\n" : "") << "<section class=\"chapter\">";
			Body << (Step.Chapter.empty() ? std::string() : "<h2>" + EscapeHtml(Step.Chapter) + "</h2>") << "\n";
			Chapter = Step.Chapter;
			bInChapter = true;
		}
		const FGalleryPicture Picture = Pictures.Add(Step.Picture);
		WriteStep(Body, Index + 1, Step, Picture, Step.Without.empty() ? FGalleryPicture() : Pictures.Add(Step.Without));
		Progress.Step();
	}
	Body << (bInChapter ? "</section>\n" : "");

	Page << "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\"/>\n"
		 << "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"/>\n<title>" << EscapeHtml(Title)
		 << "</title>\n<style>\n"
		 << GalleryStyle;
	Pictures.WriteStyle(Page);
	Page << "</style>\n</head>\n<body>\n<header><h1>" << EscapeHtml(Title) << "</h1>\n";
	WriteFacts(Page, Steps, Log);
	Page << "</header>\n<main>\n" << Body.str();
	WriteLog(Page, Log);
	Page
		<< "</main>\n<dialog id=\"view\" aria-label=\"Enlarged picture\"><div class=\"stage\" tabindex=\"-1\" autofocus=\"autofocus\"></div><p class=\"below\"></p>"
		<< "<button type=\"button\" class=\"to-previous\" aria-label=\"Previous picture\">&#x2039;</button>"
		<< "<button type=\"button\" class=\"to-next\" aria-label=\"Next picture\">&#x203A;</button>"
		<< "<button type=\"button\" class=\"to-close\" aria-label=\"Close\">&#x2715;</button></dialog>\n<script>\n"
		<< GalleryScript << "</script>\n</body>\n</html>\n";
}
}
