// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/Progress.h"

#include <gtest/gtest.h>

#include <iostream>
#include <optional>
#include <sstream>
#include <vector>

namespace
{
/** A clock of the test's own, and what was said meanwhile. */
class Progress : public testing::Test
{
protected:
	Progress()
		: FormerClock(TintmillHost::SetProgressClock([this] { return Seconds; }))
		, FormerObserver(TintmillHost::SetProgressObserver(nullptr))
		, FormerStream(std::cerr.rdbuf(Lines.rdbuf()))
	{}

	virtual ~Progress()
	{
		std::cerr.rdbuf(FormerStream);
		TintmillHost::SetProgressObserver(FormerObserver);
		TintmillHost::SetProgressClock(FormerClock);
	}

	/** Collects what an observer hears, "-" for the end. */
	void Observe()
	{
		TintmillHost::SetProgressObserver(
			[this](const TintmillHost::FProgress* Work) { Heard.push_back(Work != nullptr ? Work->GetText() : "-"); });
	}

	double Seconds = 100.0;
	std::ostringstream Lines;
	std::vector<std::string> Heard;

private:
	std::function<double()> FormerClock;
	TintmillHost::FProgressObserver FormerObserver;
	std::streambuf* FormerStream;
};

using FTexts = std::vector<std::string>;

TEST_F(Progress, SaysNothingOfWorkThatIsOverWithinHalfASecond)
{
	{
		TintmillHost::FProgress Work("Reading", 10);
		Seconds += 0.49;
		Work.Step(10);
	}
	EXPECT_EQ(Lines.str(), "");
}

TEST_F(Progress, PrintsALineAfterHalfASecondAndOneAtTheEnd)
{
	{
		TintmillHost::FProgress Work("Reading", 10);
		Seconds += 0.5;
		Work.Step(3);
		Seconds += 0.75;
	}
	EXPECT_EQ(Lines.str(), "Reading: 3 of 10 ...\nReading: done after 1.2 s.\n");
}

TEST_F(Progress, PrintsNoMoreThanALineInTwoSeconds)
{
	TintmillHost::FProgress Work("Reading", 100);
	for (int Step = 0; Step < 40; ++Step)
	{
		Seconds += 0.125;
		Work.Step();
	}
	EXPECT_EQ(Lines.str(), "Reading: 4 of 100 ...\nReading: 20 of 100 ...\nReading: 36 of 100 ...\n");
}

TEST_F(Progress, CountsWithoutATotalWhereNobodyKnowsIt)
{
	TintmillHost::FProgress Work("Scanning");
	Seconds += 1.0;
	Work.SetDone(4000);
	EXPECT_EQ(Lines.str(), "Scanning: 4000 ...\n");
	EXPECT_EQ(Work.GetFraction(), 0.0);
}

TEST_F(Progress, AnObserverHearsItInPlaceOfTheLines)
{
	Observe();
	{
		TintmillHost::FProgress Work("Reading", 4);
		Seconds += 1.0;
		Work.Step();
		Seconds += 0.01;
		Work.Step();
		Seconds += 0.05;
		Work.Step();
	}
	EXPECT_EQ(Heard, (FTexts{"Reading: 1 of 4", "Reading: 3 of 4", "-"}));
	EXPECT_EQ(Lines.str(), "");
}

TEST_F(Progress, TheInnermostWorkIsTheCurrentOneUntilItEnds)
{
	Observe();
	TintmillHost::FProgress Outer("Outer", 2);
	Seconds += 1.0;
	Outer.Step();
	{
		TintmillHost::FProgress Inner("Inner", 8);
		Seconds += 1.0;
		Inner.Step();
		EXPECT_EQ(TintmillHost::GetCurrentProgress(), &Inner);
	}
	EXPECT_EQ(TintmillHost::GetCurrentProgress(), &Outer);
	EXPECT_EQ(Heard, (FTexts{"Outer: 1 of 2", "Inner: 1 of 8", "Outer: 1 of 2"}));
}

TEST_F(Progress, NothingIsCurrentOnceAllIsOver)
{
	{
		TintmillHost::FProgress Work("Reading", 4);
		Seconds += 1.0;
		Work.Step();
	}
	EXPECT_EQ(TintmillHost::GetCurrentProgress(), nullptr);
}

TEST_F(Progress, TheFractionStaysBetweenZeroAndOne)
{
	TintmillHost::FProgress Work("Reading", 4);
	Work.SetDone(1);
	EXPECT_EQ(Work.GetFraction(), 0.25);
	Work.SetDone(9);
	EXPECT_EQ(Work.GetFraction(), 1.0);
}
}
