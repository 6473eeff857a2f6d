// Copyright The Tintmill authors. All rights reserved.

#include "Tests/Host/HostRun.h"
#include "Tests/Host/PictureComparison.h"

#include <gtest/gtest.h>

#include <memory>

// The tour of looks as assets by the real program: what it expects on its way holds, and its pictures are like the stored ones. To
// make these anew, look at them, and then store them:
//   tintmill-editor --headless --tour Host/Tours/assets.tour --out out

namespace
{
class AssetsTour : public testing::Test
{
protected:
	static void SetUpTestSuite()
	{
		Host = std::make_unique<FHostRun>();
		SettingsBefore = Host->ReadSettings();
		Result = Host->Run("--tour '" REPOSITORY_DIR "/Host/Tours/assets.tour'");
	}

	static void TearDownTestSuite() { Host.reset(); }

	static TintmillHost::FPicture ReadStored(const std::string& Name)
	{
		TintmillHost::FPicture Picture;
		EXPECT_EQ(TintmillHost::ReadPng(std::filesystem::path(TEST_SOURCE_DIR) / "Host/Expected/Assets" / Name, Picture), "");
		return Picture;
	}

	static std::unique_ptr<FHostRun> Host;
	static std::string SettingsBefore;
	static FHostRun::FResult Result;
};

std::unique_ptr<FHostRun> AssetsTour::Host;
std::string AssetsTour::SettingsBefore;
FHostRun::FResult AssetsTour::Result;

TEST_F(AssetsTour, FindsEverythingThatItExpects)
{
	EXPECT_EQ(Result.Code, 0) << Result.Output;
}

TEST_F(AssetsTour, PutsTheSettingsBack)
{
	EXPECT_EQ(Host->ReadSettings(), SettingsBefore);
}

TEST_F(AssetsTour, TakesTheLookAwayThatItMade)
{
	EXPECT_FALSE(std::filesystem::exists(Host->Path("Project/Content/Looks/DayForNight.cube")));
}

class AssetsTourPicture : public AssetsTour, public testing::WithParamInterface<const char*>
{};

TEST_P(AssetsTourPicture, IsLikeTheStoredOne)
{
	EXPECT_TRUE(IsLike(Host->ReadPicture(GetParam()), ReadStored(GetParam()), FPictureTolerance()));
}

INSTANTIATE_TEST_SUITE_P(Pictures, AssetsTourPicture,
	testing::Values("assets-01-browser.png", "assets-02-tool-tip.png", "assets-04-builder.png", "assets-09-new-menu.png",
		"assets-11-taken.png", "assets-12-made.png"));
}
