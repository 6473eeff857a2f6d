// Copyright The Tintmill authors. All rights reserved.

#include "Host/Ui/LookThumbnails.h"
#include "Host/ContentBrowser/BrowserFixture.h"
#include "StandIn/AssetThumbnails.h"

// Thumbnails of what the content browser shows.

namespace
{
class LookThumbnails : public FBrowserFixture
{
protected:
	/** Everything becomes red. */
	static std::string MakeRedLook() { return "LUT_3D_SIZE 2\n1 0 0\n1 0 0\n1 0 0\n1 0 0\n1 0 0\n1 0 0\n1 0 0\n1 0 0\n"; }

	virtual void WriteProject() override
	{
		FBrowserFixture::WriteProject();
		Project.Write("Content/Looks/Red.cube", MakeRedLook());
		for (int Index = 0; Index < 200; ++Index)
		{
			Project.Write("Content/Many/Look" + std::to_string(1000 + Index) + ".cube", MakeLook());
		}
	}

	virtual void SetUp() override
	{
		FBrowserFixture::SetUp();
		ShowLooks();
		Wait(0.2);
	}

	const FSlateBrush* FindBrush(const char* ObjectPath) const
	{
		return StandIn::FindAssetThumbnail(IAssetRegistry::GetChecked().GetAssetByObjectPath(FName(*TintmillHost::FromUtf8(ObjectPath))));
	}

	/** The color in the middle of a thumbnail. */
	FColor GetColor(const char* ObjectPath)
	{
		const FSlateBrush* const Brush = FindBrush(ObjectPath);
		const TintmillHost::FPictureView View =
			Brush != nullptr ? Thumbnails->Find(*Brush, FIntPoint(80, 78)) : TintmillHost::FPictureView();
		return View.Pixels != nullptr ? View.Pixels[View.Size.X * View.Size.Y / 2] : FColor(1, 2, 3);
	}
};

TEST_F(LookThumbnails, StayAsLongAsTheyAreShownThoughNoMenuIsOpen)
{
	const FSlateBrush* const Brush = FindBrush("/Game/Looks/Red.Red");
	Wait(3.0);
	EXPECT_TRUE(Brush != nullptr && FindBrush("/Game/Looks/Red.Red") == Brush);
}

TEST_F(LookThumbnails, ShowTheLook)
{
	EXPECT_EQ(GetColor("/Game/Looks/Red.Red"), FColor(255, 0, 0));
}

TEST_F(LookThumbnails, AreMadeForTheSizeInWhichTheyAreSeen)
{
	const TintmillHost::FPictureView View = Thumbnails->Find(*FindBrush("/Game/Looks/Red.Red"), FIntPoint(80, 78));
	EXPECT_EQ(View.Size, FIntPoint(80, 78));
}

TEST_F(LookThumbnails, FollowTheFile)
{
	Project.Write("Content/Looks/Red.cube", "LUT_3D_SIZE 2\n0 0 1\n0 0 1\n0 0 1\n0 0 1\n0 0 1\n0 0 1\n0 0 1\n0 0 1\n");
	Wait(0.2);
	EXPECT_EQ(GetColor("/Game/Looks/Red.Red"), FColor(0, 0, 255));
}

TEST_F(LookThumbnails, GiveWayToThatOfTheClassWhenTheFileIsBroken)
{
	Project.Write("Content/Looks/Red.cube", "nonsense\n");
	Wait(0.2);
	EXPECT_EQ(FindBrush("/Game/Looks/Red.Red"), nullptr);
}

TEST_F(LookThumbnails, OfTexturesAreTheirFiles)
{
	const FSlateBrush* const Brush = FindBrush("/Game/Textures/Chart.Chart");
	EXPECT_TRUE(Brush != nullptr && ToText(Brush->GetResourceName()) == ToText(Project.Path("Content/Textures/Chart.png")));
}

TEST_F(LookThumbnails, OfLooksThatWereNeverInSightAreNotMade)
{
	Browser->ShowFolder(TEXT("/Game/Many"));
	Wait(1.0);
	EXPECT_FALSE(IAssetRegistry::GetChecked().GetAssetByObjectPath(TEXT("/Game/Many/Look1199.Look1199")).IsAssetLoaded());
}
}
