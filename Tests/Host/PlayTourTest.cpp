// Copyright The Tintmill authors. All rights reserved.

#include "Tests/Host/HostRun.h"
#include "Tests/Host/PictureComparison.h"

#include <gtest/gtest.h>

#include <memory>

// The tour of play by the real program, its pictures compared with stored ones and with each other. Pictures 4 and 5 must be
// picture 1 exactly and are not stored. To make the others anew, look at them, and then store them:
//   tintmill-editor --headless --size 320x180 --tour Host/Tours/play.tour --out out

namespace
{
class PlayTour : public testing::Test
{
protected:
	static void SetUpTestSuite()
	{
		Host = std::make_unique<FHostRun>();
		SettingsBefore = Host->ReadSettings();
		Result = Host->Run("--tour '" REPOSITORY_DIR "/Host/Tours/play.tour'");
	}

	static void TearDownTestSuite() { Host.reset(); }

	static TintmillHost::FPicture ReadStored(const std::string& Name)
	{
		TintmillHost::FPicture Picture;
		EXPECT_EQ(TintmillHost::ReadPng(std::filesystem::path(TEST_SOURCE_DIR) / "Host/Expected/Play" / Name, Picture), "");
		return Picture;
	}

	static std::unique_ptr<FHostRun> Host;
	static std::string SettingsBefore;
	static FHostRun::FResult Result;
};

std::unique_ptr<FHostRun> PlayTour::Host;
std::string PlayTour::SettingsBefore;
FHostRun::FResult PlayTour::Result;

TEST_F(PlayTour, EndsWithCodeZero)
{
	EXPECT_EQ(Result.Code, 0) << Result.Output;
}

TEST_F(PlayTour, LeavesAPageThatShowsItsPictures)
{
	EXPECT_TRUE(std::filesystem::exists(Host->Path("out/index.html")));
}

class PlayTourPicture : public PlayTour, public testing::WithParamInterface<const char*>
{};

TEST_P(PlayTourPicture, IsLikeTheStoredOne)
{
	EXPECT_TRUE(IsLike(Host->ReadPicture(GetParam()), ReadStored(GetParam()), FPictureTolerance()));
}

INSTANTIATE_TEST_SUITE_P(All, PlayTourPicture,
	testing::Values("1-pane-before.png", "2-game-in-pane.png", "3-pane-and-window.png", "6-simulated.png", "7-without-look.png"));

TEST_F(PlayTour, LeavesThePaneAsItWas)
{
	EXPECT_TRUE(IsExactly(Host->ReadPicture("5-pane-after.png"), Host->ReadPicture("1-pane-before.png")));
}

TEST_F(PlayTour, ShowsTheGameFromThePanesCameraAsThePaneIs)
{
	EXPECT_TRUE(IsExactly(Host->ReadPicture("4-same-camera.png"), Host->ReadPicture("1-pane-before.png")));
}

TEST_F(PlayTour, ShowsTheGameWithAViewOfItsOwn)
{
	EXPECT_FALSE(IsLike(Host->ReadPicture("2-game-in-pane.png"), Host->ReadPicture("1-pane-before.png"), FPictureTolerance()));
}

TEST_F(PlayTour, MovesTheFiguresOfASimulation)
{
	EXPECT_FALSE(IsLike(Host->ReadPicture("6-simulated.png"), Host->ReadPicture("5-pane-after.png"), FPictureTolerance()));
}
}
