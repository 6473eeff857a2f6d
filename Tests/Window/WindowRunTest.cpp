// Copyright The Tintmill authors. All rights reserved.

#include "Host/Window/WindowRun.h"

#include "Desktop.h"
#include "Host/Picture/PngFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <sstream>

using namespace TintmillHost;

// The real program in a real window, used by a mouse and a keyboard of the window system.

namespace
{
struct FPlace
{
	int X = 0;
	int Y = 0;

	/** As xdotool wants it. */
	std::string Words() const { return std::to_string(X) + " " + std::to_string(Y); }
};

/** Where no arrow is. */
constexpr FPlace Nowhere = {-100, -100};

/** Pixels around the mouse's arrow, which the picture without a window has and the window has not. */
constexpr int PointerSize = 24;

/** Steps of 255 that a channel in the window may be off the picture that is made without one: none. */
constexpr int Tolerance = 0;

/** How many pixels outside of the arrow's are off by more than the tolerance; all of them if the sizes differ. */
int CountStrays(const FPicture& Actual, const FPicture& Expected, const FPlace& Pointer)
{
	if (Actual.Width != Expected.Width || Actual.Height != Expected.Height)
	{
		return Expected.Pixels.Num();
	}
	int Strays = 0;
	const FColor* const ActualPixels = Actual.Pixels.GetData();
	const FColor* const ExpectedPixels = Expected.Pixels.GetData();
	for (int32 Index = 0; Index < Expected.Pixels.Num(); ++Index)
	{
		const FColor& A = ActualPixels[Index];
		const FColor& B = ExpectedPixels[Index];
		if (A.R == B.R && A.G == B.G && A.B == B.B)
		{
			continue;
		}
		const int X = Index % Expected.Width - Pointer.X;
		const int Y = Index / Expected.Width - Pointer.Y;
		const bool bUnderPointer = X >= -2 && X < PointerSize && Y >= -2 && Y < PointerSize;
		const int Steps = std::max({std::abs(A.R - B.R), std::abs(A.G - B.G), std::abs(A.B - B.B)});
		Strays += !bUnderPointer && Steps > Tolerance ? 1 : 0;
	}
	return Strays;
}

class WindowRun : public testing::Test
{
protected:
	WindowRun()
	{
		std::filesystem::copy(std::filesystem::path(REPOSITORY_DIR) / "Host/DemoProject", Folder.NativePath("Project"),
			std::filesystem::copy_options::recursive);
	}

	/** Starts the program and waits until its first picture is on the screen. */
	void Start(std::vector<std::string> Arguments = {})
	{
		Arguments.insert(
			Arguments.begin(), {"--project", Folder.NativePath("Project").string(), "--out", Folder.NativePath("out").string()});
		Editor = std::make_unique<FWindowedEditor>(Desktop.GetName(), Arguments);
		ASSERT_TRUE(WaitUntil([this] {
			const FPicture Screen = Desktop.TakePicture();
			const FColor* const Row = Screen.Pixels.GetData() + Screen.Width * (Screen.Height / 2);
			return std::any_of(Row, Row + Screen.Width, [](const FColor& Pixel) { return Pixel.R + Pixel.G + Pixel.B > 0; });
		}));
		WaitUntilStill();
	}

	/** Waits until the screen stays the same for a while. */
	void WaitUntilStill()
	{
		FPicture Last = Desktop.TakePicture();
		int Still = 0;
		WaitUntil([&] {
			const FPicture Now = Desktop.TakePicture();
			Still = CountStrays(Now, Last, Nowhere) == 0 ? Still + 1 : 0;
			Last = Now;
			return Still >= 15;
		});
	}

	/** What console commands print in a run without a window, on a copy of the project as it was at first. */
	std::string Ask(const std::string& Commands)
	{
		const std::filesystem::path Copy = Folder.NativePath("Asked");
		std::filesystem::remove_all(Copy);
		std::filesystem::copy(std::filesystem::path(REPOSITORY_DIR) / "Host/DemoProject", Copy, std::filesystem::copy_options::recursive);
		const FProgramResult Result = RunProgram(TINTMILL_EDITOR,
			{"--headless", "--project", Copy.string(), "--out", Folder.NativePath("out").string(), "--exec",
				"window 1280 800; " + Commands});
		EXPECT_EQ(Result.Code, 0) << Result.Output;
		return Result.Output;
	}

	/** Asks for places of "PANE|all LABEL", one command "where" each. */
	std::vector<FPlace> FindAll(const std::string& Commands)
	{
		std::istringstream Lines(Ask(Commands));
		std::vector<FPlace> Places;
		for (std::string Line; std::getline(Lines, Line);)
		{
			std::istringstream Words(Line);
			FPlace Place;
			std::string Rest;
			if (Words >> Place.X >> Place.Y && !(Words >> Rest))
			{
				Places.push_back(Place);
			}
		}
		// So that a test does not end because of one that is missing; the run has said what is wrong.
		Places.resize(8);
		return Places;
	}

	void Click(const FPlace& Place) { Desktop.Do("mousemove " + Place.Words() + " click 1"); }

	/** Waits until the window shows what a run without one has saved as a picture; returns how many pixels differ in the end. */
	int WaitForPicture(const std::string& Name, const FPlace& Pointer)
	{
		FPicture Expected;
		EXPECT_EQ(ReadPng(Folder.NativePath("out/" + Name), Expected), "");
		int Strays = Expected.Pixels.Num();
		WaitUntil([&] {
			Strays = CountStrays(Desktop.TakePicture(), Expected, Pointer);
			return Strays == 0;
		});
		return Strays;
	}

	std::string ReadSettings() const { return Folder.Read("Project/Saved/Config/Linux/EditorPerProjectUserSettings.ini"); }

	FTestFolder Folder;
	FDesktop Desktop;
	std::unique_ptr<FWindowedEditor> Editor;
};

const std::vector<std::string> WholeScreen = {"--window", "1280x800"};
}

TEST_F(WindowRun, ShowsWhatThePictureWithoutAWindowShows)
{
	Start(WholeScreen);
	const FPlace Place = FindAll("where 1 Lit; open 1 View; close-menus; tick 1; shot shown.png")[0];
	Desktop.Do("mousemove " + Place.Words());
	EXPECT_EQ(WaitForPicture("shown.png", Place), 0);
}

TEST_F(WindowRun, LeavesInTheEnginesOrderWhenItIsTerminated)
{
	Start(WholeScreen);
	Editor->Signal(SIGTERM);
	const FProgramResult Result = Editor->Wait();
	EXPECT_EQ(Result.Code, 0) << Result.Output;
	EXPECT_NE(Result.Output.find("Shutting down and abandoning module TintmillEditor"), std::string::npos);
}

TEST_F(WindowRun, LeavesInTheEnginesOrderWhenTheWindowIsClosed)
{
	Start(WholeScreen);
	ASSERT_TRUE(Desktop.CloseWindow("DemoProject - Tintmill Editor") || Desktop.CloseWindow("Project - Tintmill Editor"));
	const FProgramResult Result = Editor->Wait();
	EXPECT_EQ(Result.Code, 0) << Result.Output;
	EXPECT_NE(Result.Output.find("Shutting down and abandoning module TintmillEditor"), std::string::npos);
}

TEST_F(WindowRun, LeavesInTheEnginesOrderByTheMenu)
{
	Start(WholeScreen);
	const std::vector<FPlace> Places = FindAll("where all File; click File; where all Exit; shot file.png");
	Click(Places[0]);
	EXPECT_EQ(WaitForPicture("file.png", Places[0]), 0);
	Click(Places[1]);
	const FProgramResult Result = Editor->Wait();
	EXPECT_EQ(Result.Code, 0) << Result.Output;
	EXPECT_NE(Result.Output.find("Shutting down and abandoning module TintmillEditor"), std::string::npos);
}

TEST_F(WindowRun, LeavesInTheEnginesOrderWhenTheDisplayGoesAway)
{
	Start(WholeScreen);
	Desktop.Kill();
	const FProgramResult Result = Editor->Wait();
	EXPECT_EQ(Result.Code, 0) << Result.Output;
	EXPECT_NE(Result.Output.find("The display has gone away."), std::string::npos);
	EXPECT_NE(Result.Output.find("Shutting down and abandoning module TintmillEditor"), std::string::npos);
}

TEST_F(WindowRun, UsesHardlyAnyProcessorTimeWhenNobodyUsesIt)
{
	Start(WholeScreen);
	// Frames follow the last change for a while.
	for (int Round = 0; Round < 4; ++Round)
	{
		WaitUntilStill();
	}
	const double Before = Editor->GetProcessorTime();
	for (int Round = 0; Round < 6; ++Round)
	{
		WaitUntilStill();
	}
	// At least two seconds have passed.
	EXPECT_LT(Editor->GetProcessorTime() - Before, 0.1);
}

TEST_F(WindowRun, FillsAWindowOf200By100)
{
	Start({"--window", "200x100"});
	EXPECT_TRUE(Editor->IsRunning());
}

TEST_F(WindowRun, PicksALookByMouseAndKeyboardAndHasItAgainAfterARestart)
{
	Start(WholeScreen);
	const std::vector<FPlace> Places =
		FindAll("where 1 Lit; click-pane 1; open 1 View; where all Tintmill; shot view.png; hover Tintmill; "
				"where all WarmPrint; shot panel.png; hover WarmPrint; shot picker.png; type bleach; where all "
				"BleachBypass; hover BleachBypass; shot found.png; click BleachBypass; close-menus; tick 1; "
				"hover Lit; shot picked.png");
	const FPlace& View = Places[0];
	const FPlace& Tintmill = Places[1];
	const FPlace& Row = Places[2];
	const FPlace& Look = Places[3];
	Click({View.X + 100, View.Y + 100});
	Click(View);
	EXPECT_EQ(WaitForPicture("view.png", View), 0);
	Desktop.Do("mousemove " + Tintmill.Words());
	EXPECT_EQ(WaitForPicture("panel.png", Tintmill), 0);
	Desktop.Do("mousemove " + Row.Words());
	EXPECT_EQ(WaitForPicture("picker.png", Row), 0);
	Desktop.Do("type bleach");
	Desktop.Do("mousemove " + Look.Words());
	EXPECT_EQ(WaitForPicture("found.png", Look), 0);
	Click(Look);
	WaitUntilStill();
	Desktop.Do("key Escape key Escape key Escape");
	// The first "Lit" there is belongs to the pane on the left.
	const FPlace Rest = FindAll("where all Lit")[0];
	Desktop.Do("mousemove " + Rest.Words());
	EXPECT_EQ(WaitForPicture("picked.png", Rest), 0);

	Editor->Signal(SIGTERM);
	EXPECT_EQ(Editor->Wait().Code, 0);
	EXPECT_NE(ReadSettings().find("BleachBypass"), std::string::npos);
	Start(WholeScreen);
	Desktop.Do("mousemove " + Rest.Words());
	EXPECT_EQ(WaitForPicture("picked.png", Rest), 0);
}

TEST_F(WindowRun, DragsASplitterAndKeepsItForTheNextStart)
{
	Start(WholeScreen);
	const FPicture Before = Desktop.TakePicture();
	const FPlace Splitter = FindAll("where all splitter 1")[0];
	Desktop.Do("mousemove " + Splitter.Words() + " mousedown 1");
	for (int Step = 1; Step <= 8; ++Step)
	{
		Desktop.Do("mousemove " + FPlace{Splitter.X - 10 * Step, Splitter.Y - 10 * Step}.Words());
	}
	Desktop.Do("mouseup 1 mousemove 2 2");
	const int SomePixels = Before.Pixels.Num() / 8;
	EXPECT_TRUE(WaitUntil([&] { return CountStrays(Desktop.TakePicture(), Before, Nowhere) > SomePixels; }));
	WaitUntilStill();
	const FPicture After = Desktop.TakePicture();
	const int Moved = CountStrays(After, Before, Nowhere);

	Editor->Signal(SIGTERM);
	EXPECT_EQ(Editor->Wait().Code, 0);
	Start(WholeScreen);
	Desktop.Do("mousemove 2 2");
	// A share of the height is kept: the handle comes back to where it was or a pixel beside it.
	EXPECT_TRUE(WaitUntil([&] { return CountStrays(Desktop.TakePicture(), After, Nowhere) < Moved / 3; }));
}

TEST_F(WindowRun, KeepsTheSizeThatItWasGivenForTheNextStart)
{
	Start();
	Desktop.Do("search --onlyvisible --name Editor windowmove 0 0 windowsize 900 600");
	const auto IsFilled = [this] {
		const FPicture Screen = Desktop.TakePicture();
		const auto IsLit = [&Screen](int X, int Y) {
			const FColor& Pixel = Screen.Pixels[Y * Screen.Width + X];
			return Pixel.R + Pixel.G + Pixel.B > 0;
		};
		return IsLit(5, 598) && IsLit(897, 598) && !IsLit(905, 300) && !IsLit(450, 605);
	};
	EXPECT_TRUE(WaitUntil(IsFilled));
	Editor->Signal(SIGTERM);
	EXPECT_EQ(Editor->Wait().Code, 0);
	EXPECT_NE(ReadSettings().find("WindowWidth=900"), std::string::npos);
	Start();
	Desktop.Do("search --onlyvisible --name Editor windowmove 0 0");
	EXPECT_TRUE(WaitUntil(IsFilled));
}

TEST_F(WindowRun, SaysOnceThatThereIsNoDisplayWhereTheEnvironmentNamesNone)
{
	FWindowedEditor Program("", {"--out", Folder.NativePath("out").string(), "--project", Folder.NativePath("Project").string()});
	const std::string Output = Program.Wait().Output;
	const std::string Sentence = "No window can be opened: there is no display. Running without a window.\n";
	EXPECT_NE(Output.find(Sentence), std::string::npos) << Output;
	EXPECT_EQ(Output.find("No window"), Output.rfind("No window"));
	EXPECT_EQ(Output.find("XDG_RUNTIME_DIR"), std::string::npos);
}

TEST_F(WindowRun, SaysInOneSentenceThatThereIsNoDisplayAndRunsWithoutAWindow)
{
	FWindowedEditor Program(":9999", {"--project", Folder.NativePath("Project").string(), "--out", Folder.NativePath("out").string()});
	const FProgramResult Result = Program.Wait();
	EXPECT_EQ(Result.Code, 0) << Result.Output;
	EXPECT_NE(Result.Output.find("No window can be opened: "), std::string::npos);
	EXPECT_NE(Result.Output.find(" Running without a window.\n"), std::string::npos);
}
