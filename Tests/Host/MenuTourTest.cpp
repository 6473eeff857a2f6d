// Copyright The Tintmill authors. All rights reserved.

#include "Tests/Host/HostRun.h"
#include "Tests/Host/PictureComparison.h"

#include <gtest/gtest.h>

#include <memory>

// The tour of the menu by the real program: what it expects on its way holds, and its pictures are like the stored ones. To make
// these anew, look at them, and then store them:
//   tintmill-editor --headless --tour Host/Tours/menu.tour --out out

namespace
{
class MenuTour : public testing::Test
{
protected:
	static void SetUpTestSuite()
	{
		Host = std::make_unique<FHostRun>();
		SettingsBefore = Host->ReadSettings();
		Result = Host->Run("--tour '" REPOSITORY_DIR "/Host/Tours/menu.tour'");
	}

	static void TearDownTestSuite() { Host.reset(); }

	static TintmillHost::FPicture ReadStored(const std::string& Name)
	{
		TintmillHost::FPicture Picture;
		EXPECT_EQ(TintmillHost::ReadPng(std::filesystem::path(TEST_SOURCE_DIR) / "Host/Expected/Menu" / Name, Picture), "");
		return Picture;
	}

	static std::unique_ptr<FHostRun> Host;
	static std::string SettingsBefore;
	static FHostRun::FResult Result;
};

std::unique_ptr<FHostRun> MenuTour::Host;
std::string MenuTour::SettingsBefore;
FHostRun::FResult MenuTour::Result;

TEST_F(MenuTour, FindsEverythingThatItExpects)
{
	EXPECT_EQ(Result.Code, 0) << Result.Output;
}

TEST_F(MenuTour, PutsBackWhatThePaneShowed)
{
	EXPECT_EQ(Host->ReadSettings(), SettingsBefore);
}

class MenuTourPicture : public MenuTour, public testing::WithParamInterface<const char*>
{};

TEST_P(MenuTourPicture, IsLikeTheStoredOne)
{
	EXPECT_TRUE(IsLike(Host->ReadPicture(GetParam()), ReadStored(GetParam()), FPictureTolerance()));
}

INSTANTIATE_TEST_SUITE_P(Pictures, MenuTourPicture,
	testing::Values("menu-02-view.png", "menu-03-tintmill.png", "menu-06-picker.png", "menu-07-search.png", "menu-08-picked.png"));
}
