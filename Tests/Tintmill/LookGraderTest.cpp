// Copyright The Tintmill authors. All rights reserved.

#include "Tintmill/Private/LookGrader.h"

#include "Tintmill/TestGrader.h"

#include <gtest/gtest.h>

namespace LookGraderTest
{
/** Makes one given grader, or none, from files with the extension "test". */
class FTestMaker : public LookGrading::ILookGraderMaker
{
public:
	FTestMaker(int InRank, std::shared_ptr<const LookGrading::ILookGrader> InGrader)
		: ILookGraderMaker(InRank)
		, Grader(InGrader)
	{}

	virtual bool CanMake(const LookFile::FCheckedFile& File) const override { return File.Extension == "test"; }

	virtual std::shared_ptr<const LookGrading::ILookGrader> Make(const LookFile::FCheckedFile&, std::string& OutReason) const override
	{
		OutReason = "the test said no";
		return Grader;
	}

private:
	std::shared_ptr<const LookGrading::ILookGrader> Grader;
};

static LookFile::FCheckedFile TestFile()
{
	LookFile::FCheckedFile File;
	File.Extension = "test";
	return File;
}

TEST(LookGrader, AsksTheMakerWithTheHighestRankFirst)
{
	std::string Reason;
	const std::shared_ptr<const LookGrading::ILookGrader> Expected = std::make_shared<TintmillTest::FInvertingGrader>();
	const FTestMaker Low(100, std::make_shared<TintmillTest::FInvertingGrader>());
	const FTestMaker High(200, Expected);
	EXPECT_EQ(LookGrading::MakeLookGrader(TestFile(), Reason), Expected);
}

TEST(LookGrader, AsksTheNextMakerWhenOneHasNoGrader)
{
	std::string Reason;
	const std::shared_ptr<const LookGrading::ILookGrader> Expected = std::make_shared<TintmillTest::FInvertingGrader>();
	const FTestMaker Low(100, Expected);
	const FTestMaker High(200, nullptr);
	EXPECT_EQ(LookGrading::MakeLookGrader(TestFile(), Reason), Expected);
}

TEST(LookGrader, ForgetsAMakerThatIsGone)
{
	std::string Reason;
	{
		const FTestMaker Gone(300, std::make_shared<TintmillTest::FInvertingGrader>());
	}
	const FTestMaker Left(100, nullptr);
	EXPECT_EQ(LookGrading::MakeLookGrader(TestFile(), Reason), nullptr);
}
}
