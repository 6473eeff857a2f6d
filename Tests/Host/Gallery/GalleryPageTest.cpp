// Copyright The Tintmill authors. All rights reserved.

#include "Host/Gallery/GalleryPage.h"

#include "Host/Picture/PngFile.h"
#include "Support/TestFolder.h"
#include "Tests/Host/Gallery/MarkupCheck.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace TintmillHost;

namespace
{
size_t Count(const std::string& Text, const std::string& Piece)
{
	size_t Number = 0;
	for (size_t At = Text.find(Piece); At != std::string::npos; At = Text.find(Piece, At + Piece.size()))
	{
		++Number;
	}
	return Number;
}

class GalleryPage : public testing::Test
{
protected:
	/** A picture of one color as a file. */
	std::filesystem::path Picture(const std::string& Name, const FColor& Color) const
	{
		FPicture Plain;
		Plain.Width = 32;
		Plain.Height = 18;
		Plain.Pixels.Init(Color, 32 * 18);
		EXPECT_EQ(WritePng(Plain, Folder.NativePath(Name)), "");
		return Folder.NativePath(Name);
	}

	static FGalleryCommand Command(const std::string& Text, double Seconds = 0.1, const std::string& Problem = "")
	{
		return {"Host/Tours/my.tour:7", Text, Seconds, Problem};
	}

	std::string Write(const std::vector<FGalleryLogLine>& Log = {}) const
	{
		EXPECT_EQ(Subject.Write(Folder.NativePath("index.html"), "Project", Log), "");
		return Folder.Read("index.html");
	}

	/** The page without style sheet and script. */
	std::string WriteBody(const std::vector<FGalleryLogLine>& Log = {}) const
	{
		const std::string Page = Write(Log);
		const size_t Start = Page.find("<body>");
		return Page.substr(Start, Page.find("<script>") - Start);
	}

	FTestFolder Folder;
	FGalleryPage Subject;
};

TEST_F(GalleryPage, HasAPictureAndACaptionForEveryStep)
{
	Subject.AddPicture("First & foremost", Picture("a.png", FColor::Red));
	Subject.AddPicture("Second", Picture("b.png", FColor::Green));
	const std::string Body = WriteBody();
	EXPECT_EQ(Count(Body, "<figure "), 2u);
	EXPECT_EQ(Count(Body, "class=\"pic p0\""), 1u);
	EXPECT_EQ(Count(Body, "class=\"pic p1\""), 1u);
	EXPECT_NE(Body.find("<span class=\"caption\">First &amp; foremost</span>"), std::string::npos);
}

TEST_F(GalleryPage, IsWellFormedWhateverItTells)
{
	Subject.SetTitle("A \"title\" with <tags> & more");
	Subject.BeginChapter("Chapter <1>");
	Subject.AddPicture("<script>alert(1)</script>", Picture("a.png", FColor::Red));
	Subject.NoteCommand(Command("click \"A > B\" & 'C'"));
	Subject.AddComparison("Look \"x\"", Picture("b.png", FColor::Green), Picture("c.png", FColor::Blue));
	Subject.NoteCommand(Command("fail", 0.1, "There is no '<thing>' & no other."));
	EXPECT_EQ(FindMarkupProblem(Write({{"warning", "<b>bold</b> & \"quoted\" \x01"}})), "");
}

TEST_F(GalleryPage, TheCheckOfTheMarkupFindsProblems)
{
	EXPECT_NE(FindMarkupProblem("<p>a"), "");
	EXPECT_NE(FindMarkupProblem("<p><b></p></b>"), "");
	EXPECT_NE(FindMarkupProblem("<p class=x></p>"), "");
	EXPECT_NE(FindMarkupProblem("<p>a & b</p>"), "");
	EXPECT_NE(FindMarkupProblem("<p>a < b</p>"), "");
	EXPECT_EQ(FindMarkupProblem("<!DOCTYPE html><p class=\"a > b\">a &amp; b<br/></p>"), "");
}

TEST_F(GalleryPage, NeedsNoOtherFile)
{
	Subject.AddPicture("Only", Picture("a.png", FColor::Red));
	const std::string Page = Write();
	EXPECT_EQ(Page.find("http"), std::string::npos);
	EXPECT_EQ(Page.find("src="), std::string::npos);
	EXPECT_EQ(Page.find("<link"), std::string::npos);
	EXPECT_EQ(Page.find("@import"), std::string::npos);
	EXPECT_EQ(Count(Page, "url("), Count(Page, "url(data:"));
}

TEST_F(GalleryPage, HasASliderWhereTwoPicturesDifferByTheLook)
{
	Subject.AddPicture("Alone", Picture("a.png", FColor::Red));
	Subject.AddComparison("Two", Picture("b.png", FColor::Green), Picture("c.png", FColor::Blue));
	const std::string Body = WriteBody();
	EXPECT_EQ(Count(Body, "type=\"range\""), 1u);
	EXPECT_GT(Body.find("type=\"range\""), Body.find("id=\"step-2\""));
}

TEST_F(GalleryPage, HasNoSliderWhereTheLookChangesNothing)
{
	Subject.AddComparison("Same", Picture("a.png", FColor::Red), Picture("b.png", FColor::Red));
	const std::string Body = WriteBody();
	EXPECT_EQ(Count(Body, "type=\"range\""), 0u);
	EXPECT_EQ(Count(Body, "class=\"pic p0\""), 1u);
}

TEST_F(GalleryPage, HoldsEqualPicturesOnce)
{
	Subject.AddPicture("One", Picture("a.png", FColor::Red));
	Subject.AddPicture("Another", Picture("b.png", FColor::Green));
	Subject.AddPicture("One again", Picture("c.png", FColor::Red));
	EXPECT_EQ(Count(Write(), "data:image/png"), 2u);
	EXPECT_EQ(Count(WriteBody(), "class=\"pic p0\""), 2u);
}

TEST_F(GalleryPage, ShowsAFileAsItWasWhenItWasAdded)
{
	Subject.AddPicture("Before", Picture("a.png", FColor::Red));
	Subject.AddPicture("After", Picture("a.png", FColor::Green));
	EXPECT_EQ(Count(Write(), "data:image/png"), 2u);
}

TEST_F(GalleryPage, CommandsBelongToThePictureThatTheyLedTo)
{
	Subject.NoteCommand(Command("open 1 View", 0.2));
	Subject.AddPicture("Menu", Picture("a.png", FColor::Red));
	Subject.NoteCommand(Command("shot a.png", 0.3));
	Subject.NoteCommand(Command("close-menus"));
	const std::vector<FGalleryStep> Steps = Subject.GetSteps();
	ASSERT_EQ(Steps.size(), 2u);
	ASSERT_EQ(Steps[0].Commands.size(), 2u);
	EXPECT_EQ(Steps[0].Commands[0].Text, "open 1 View");
	EXPECT_DOUBLE_EQ(Steps[0].CountSeconds(), 0.5);
	EXPECT_EQ(Steps[1].Commands[0].Text, "close-menus");
}

TEST_F(GalleryPage, TellsTheTimeOfEveryStepAndCommand)
{
	Subject.NoteCommand(Command("open 1 View", 0.25));
	Subject.AddPicture("Menu", Picture("a.png", FColor::Red));
	Subject.NoteCommand(Command("shot a.png", 1.0));
	const std::string Body = WriteBody();
	EXPECT_NE(Body.find("<time>1.25 s</time></p>"), std::string::npos) << Body;
	EXPECT_NE(Body.find("title=\"Host/Tours/my.tour:7\"><code>open 1 View</code> <time>250 ms</time>"), std::string::npos) << Body;
}

TEST_F(GalleryPage, TellsWhereTheRunFailed)
{
	Subject.AddPicture("Fine", Picture("a.png", FColor::Red));
	Subject.NoteCommand(Command("shot a.png"));
	Subject.NoteCommand(Command("click Nothing", 0.1, "Nothing in sight is labeled 'Nothing'."));
	const std::string Body = WriteBody();
	EXPECT_EQ(Count(Body, "class=\"step failed\""), 1u);
	EXPECT_NE(Body.find("<p class=\"problem\">Nothing in sight is labeled 'Nothing'.</p>"), std::string::npos);
}

TEST_F(GalleryPage, HasAHeadingForEveryChapter)
{
	Subject.BeginChapter("First");
	Subject.AddPicture("a", Picture("a.png", FColor::Red));
	Subject.AddPicture("b", Picture("b.png", FColor::Green));
	Subject.BeginChapter("Second");
	Subject.AddPicture("c", Picture("c.png", FColor::Blue));
	const std::string Body = WriteBody();
	EXPECT_EQ(Count(Body, "<h2>First</h2>"), 1u);
	EXPECT_EQ(Count(Body, "<h2>Second</h2>"), 1u);
}

TEST_F(GalleryPage, TakesTheTitleOfTheTour)
{
	EXPECT_NE(Write().find("<title>Project</title>"), std::string::npos);
	Subject.SetTitle("My tour");
	EXPECT_NE(Write().find("<title>My tour</title>"), std::string::npos);
}

TEST_F(GalleryPage, ShowsTheLogByKindsEscaped)
{
	const std::string Body = WriteBody({{"warning", "<careful>"}, {"log", "plain"}, {"log", "more"}});
	EXPECT_NE(Body.find("<li class=\"warning\">&lt;careful&gt;</li>"), std::string::npos);
	EXPECT_NE(
		Body.find("<label class=\"log\"><input type=\"checkbox\" checked=\"checked\" value=\"log\"/>log 2</label>"), std::string::npos);
	EXPECT_EQ(Body.find("value=\"error\""), std::string::npos);
}

TEST_F(GalleryPage, ShowsTheLastLinesOfAVeryLongLog)
{
	std::vector<FGalleryLogLine> Log(20005, {"log", "line"});
	Log.back().Text = "the last";
	const std::string Body = WriteBody(Log);
	EXPECT_NE(Body.find("(5 earlier lines are left out)"), std::string::npos);
	EXPECT_NE(Body.find("the last"), std::string::npos);
}

TEST_F(GalleryPage, IsEmptyWithoutPictures)
{
	EXPECT_TRUE(Subject.IsEmpty());
	Subject.NoteCommand(Command("panes"));
	EXPECT_TRUE(Subject.IsEmpty());
	Subject.AddPicture("a", Picture("a.png", FColor::Red));
	EXPECT_FALSE(Subject.IsEmpty());
}

TEST_F(GalleryPage, GoesOnInAnotherRun)
{
	Subject.SetTitle("Title");
	Subject.BeginChapter("Chapter");
	Subject.AddComparison("Two", Picture("a.png", FColor::Red), Picture("b.png", FColor::Green));
	Subject.NoteCommand(Command("first"));
	Subject.NoteCommand(Command("second"));
	std::stringstream State;
	Subject.Save(State);
	const std::string Before = Write();

	FGalleryPage Other;
	ASSERT_TRUE(Other.Load(State));
	EXPECT_EQ(Other.Write(Folder.NativePath("other.html"), "Project", {}), "");
	EXPECT_EQ(Folder.Read("other.html"), Before);
	Other.AddPicture("Next", Picture("c.png", FColor::Blue));
	Other.NoteCommand(Command("third"));
	ASSERT_EQ(Other.GetSteps().size(), 2u);
	EXPECT_EQ(Other.GetSteps()[1].Commands.size(), 2u);
	EXPECT_EQ(Other.GetSteps()[1].Chapter, "Chapter");
}

TEST_F(GalleryPage, AFileThatCannotBeWrittenMakesOneSentence)
{
	Folder.Write("out", "a file in the way");
	const std::string Problem = Subject.Write(Folder.NativePath("out/index.html"), "Project", {});
	EXPECT_EQ(Problem.find("Cannot write the page "), 0u) << Problem;
	EXPECT_NE(Problem.find("Choose another folder with --out."), std::string::npos);
}
}
