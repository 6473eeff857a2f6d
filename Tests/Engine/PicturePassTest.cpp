// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/PicturePass.h"

#include "StandIn/Registrations.h"
#include "ViewportDouble.h"

namespace
{
/** A pass that doubles the red of every pixel. */
class FDoubleRed : public FAddRed
{
public:
	FDoubleRed()
		: FAddRed(0)
	{}
	virtual void Apply(FViewportClient*, const FIntPoint&, FColor* Pixels) override { Pixels[0].R = static_cast<uint8>(Pixels[0].R * 2); }
};

/** Counts the listed passes of an owner. */
int CountListed(const void* Owner)
{
	int Found = 0;
	for (const StandIn::FRegistration& Registration : StandIn::ListRegistrations())
	{
		Found += Registration.Registry == TEXT("PicturePasses") && Registration.Owner == Owner;
	}
	return Found;
}
}

TEST(FPicturePass, AreAppliedInTheOrderOfRegistration)
{
	FAddRed First(3);
	FDoubleRed Second;
	FColor Pixel(1, 0, 0, 0);
	StandIn::ApplyPicturePasses(nullptr, FIntPoint(1, 1), &Pixel);
	EXPECT_EQ(Pixel.R, 8);
}

TEST(FPicturePass, AreAppliedNoMoreOnceTheyAreUnregistered)
{
	FAddRed Pass(3);
	StandIn::UnregisterPicturePass(&Pass);
	FColor Pixel(1, 0, 0, 0);
	StandIn::ApplyPicturePasses(nullptr, FIntPoint(1, 1), &Pixel);
	EXPECT_EQ(Pixel.R, 1);
}

TEST(FPicturePass, AreListedWhileTheyAreRegistered)
{
	FAddRed Pass(3);
	EXPECT_EQ(CountListed(static_cast<StandIn::IPicturePass*>(&Pass)), 1);
}

TEST(FPicturePass, AreListedNoMoreOnceTheyAreUnregistered)
{
	FAddRed Pass(3);
	StandIn::UnregisterPicturePass(&Pass);
	EXPECT_EQ(CountListed(static_cast<StandIn::IPicturePass*>(&Pass)), 0);
}

TEST(FPicturePass, CannotBeRegisteredTwice)
{
	FAddRed Pass(3);
	EXPECT_DEATH(StandIn::RegisterPicturePass(&Pass), "Assertion failed");
}
