// Copyright The Tintmill authors. All rights reserved.

#include "Tintmill/Private/TintmillPicturePass.h"

#include "Tintmill/LookTestBase.h"
#include "TintmillDisplayManager.h"
#include "UnrealClient.h"

#include <limits>
#include <vector>

namespace TintmillPicturePassTest
{
using namespace TintmillTest;

class TintmillPicturePass : public FLookTestBase
{
protected:
	TintmillPicturePass()
		: Pass(Manager)
	{}

	/** Gives the client a look that takes colors to their opposites. */
	FTintmillDisplayConfiguration& ShowInverted(float Intensity = 1.0f)
	{
		UTintmillObject* const Asset = NewLook();
		Load(Asset, InvertingCube);
		return Show(Asset, Intensity);
	}

	FTintmillDisplayConfiguration& Show(UTintmillObject* Asset, float Intensity = 1.0f)
	{
		FTintmillDisplayConfiguration& Configuration = Manager.FindOrAddDisplayConfiguration(&Client);
		Configuration.bEnableDisplay = true;
		Configuration.Intensity = Intensity;
		Configuration.LookAsset = Asset;
		return Configuration;
	}

	/** The bytes of one pixel, red 10, green 20, blue 30, alpha 40, after the pass: blue first. */
	std::vector<int> Drawn()
	{
		FColor Pixel(10, 20, 30, 40);
		Pass.Apply(&Client, FIntPoint(1, 1), &Pixel);
		return {Pixel.B, Pixel.G, Pixel.R, Pixel.A};
	}

	const std::vector<int> Untouched = {30, 20, 10, 40};
	FViewportClient Client;
	FTintmillDisplayManager Manager;
	FTintmillPicturePass Pass;
};

TEST_F(TintmillPicturePass, AppliesTheLookOfTheClientsRecord)
{
	ShowInverted();
	EXPECT_EQ(Drawn(), (std::vector<int>{225, 235, 245, 40}));
}

TEST_F(TintmillPicturePass, TakesRedForRedAndBlueForBlue)
{
	UTintmillObject* const Asset = NewLook();
	Load(Asset, "LUT_1D_SIZE 2\n1 0 0\n1 1 0\n");
	Show(Asset);
	EXPECT_EQ(Drawn(), (std::vector<int>{0, 20, 255, 40}));
}

TEST_F(TintmillPicturePass, LeavesAClientWithoutARecordAlone)
{
	EXPECT_EQ(Drawn(), Untouched);
}

TEST_F(TintmillPicturePass, AddsNoRecord)
{
	Drawn();
	EXPECT_EQ(Manager.GetDisplayConfiguration(&Client), nullptr);
}

TEST_F(TintmillPicturePass, LeavesEveryBitWhenSwitchedOff)
{
	ShowInverted().bEnableDisplay = false;
	EXPECT_EQ(Drawn(), Untouched);
}

TEST_F(TintmillPicturePass, LeavesEveryBitWithoutALook)
{
	Show(nullptr);
	EXPECT_EQ(Drawn(), Untouched);
}

TEST_F(TintmillPicturePass, LeavesEveryBitAtIntensityNought)
{
	ShowInverted(0.0f);
	EXPECT_EQ(Drawn(), Untouched);
}

TEST_F(TintmillPicturePass, LeavesEveryBitAtANegativeIntensity)
{
	ShowInverted(-1.0f);
	EXPECT_EQ(Drawn(), Untouched);
}

TEST_F(TintmillPicturePass, LeavesEveryBitWhenTheIntensityIsNoNumber)
{
	ShowInverted(std::numeric_limits<float>::quiet_NaN());
	EXPECT_EQ(Drawn(), Untouched);
}

TEST_F(TintmillPicturePass, LeavesEveryBitWhenTheFileCannotBeUsed)
{
	UTintmillObject* const Asset = NewLook();
	Load(Asset, "LUT_1D_SIZE 2\n");
	Show(Asset);
	EXPECT_EQ(Drawn(), Untouched);
}

TEST_F(TintmillPicturePass, TakesTheRoundedHalfAtHalfIntensity)
{
	ShowInverted(0.5f);
	EXPECT_EQ(Drawn(), (std::vector<int>{128, 128, 128, 40}));
}

TEST_F(TintmillPicturePass, TakesAnIntensityAboveOneAsOne)
{
	ShowInverted(7.0f);
	EXPECT_EQ(Drawn(), (std::vector<int>{225, 235, 245, 40}));
}

TEST_F(TintmillPicturePass, SeesAChangeOfTheRecordAtTheNextDraw)
{
	FTintmillDisplayConfiguration& Configuration = ShowInverted();
	Drawn();
	Configuration.bEnableDisplay = false;
	EXPECT_EQ(Drawn(), Untouched);
}

TEST_F(TintmillPicturePass, LeavesOtherClientsAlone)
{
	ShowInverted();
	FViewportClient Other;
	FColor Pixel(1, 2, 3, 4);
	Pass.Apply(&Other, FIntPoint(1, 1), &Pixel);
	EXPECT_EQ(Pixel, FColor(1, 2, 3, 4));
}

TEST_F(TintmillPicturePass, DoesNotFollowAPointerToALookThatIsGone)
{
	alignas(UTintmillObject) static char Memory[sizeof(UTintmillObject)];
	Show(reinterpret_cast<UTintmillObject*>(Memory));
	EXPECT_EQ(Drawn(), Untouched);
}

TEST_F(TintmillPicturePass, SaysOnceThatALookHasNoFile)
{
	Show(NewLook());
	Drawn();
	Drawn();
	EXPECT_EQ(NoticeTexts(), "Teal has no look file, so it leaves the picture as it is; choose a look that comes from a file.\n");
}

TEST_F(TintmillPicturePass, ReadsNoFileWhileItDraws)
{
	ShowInverted();
	std::filesystem::remove(Folder.At("Teal.cube"));
	EXPECT_EQ(Drawn(), (std::vector<int>{225, 235, 245, 40}));
}

TEST_F(TintmillPicturePass, HasAnotherKeyAtAnotherIntensity)
{
	FTintmillDisplayConfiguration& Configuration = ShowInverted();
	const uint64 Before = Pass.GetStateKey(&Client);
	Configuration.Intensity = 0.5f;
	EXPECT_NE(Pass.GetStateKey(&Client), Before);
}

TEST_F(TintmillPicturePass, HasAnotherKeyAfterTheFileChanged)
{
	ShowInverted();
	const uint64 Before = Pass.GetStateKey(&Client);
	Folder.Write("Teal.cube", "LUT_1D_SIZE 2\n0 0 0\n1 1 0.25\n");
	StandIn::PollLookFiles();
	EXPECT_NE(Pass.GetStateKey(&Client), Before);
}

TEST_F(TintmillPicturePass, SaysOnceThatTheFileOfALookThatIsShownWasDeleted)
{
	ShowInverted();
	std::filesystem::remove(Folder.At("Teal.cube"));
	StandIn::PollLookFiles();
	EXPECT_EQ(Drawn(), (std::vector<int>{30, 20, 10, 40}));
	Drawn();
	EXPECT_EQ(NoticeTexts(), "Teal.cube: the file does not exist; the picture stays as it is until the file is mended.\n");
}

TEST_F(TintmillPicturePass, HasTheSameKeyWhileNothingChanges)
{
	ShowInverted();
	EXPECT_EQ(Pass.GetStateKey(&Client), Pass.GetStateKey(&Client));
}

TEST_F(TintmillPicturePass, HasTheSameKeySwitchedOffAsWithoutARecord)
{
	const uint64 Before = Pass.GetStateKey(&Client);
	ShowInverted().bEnableDisplay = false;
	EXPECT_EQ(Pass.GetStateKey(&Client), Before);
}
}
