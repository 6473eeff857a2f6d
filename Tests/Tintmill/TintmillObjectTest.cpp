// Copyright The Tintmill authors. All rights reserved.

#include "TintmillObject.h"

#include "StandIn/LookBuilder.h"
#include "Tintmill/LookTestBase.h"
#include "TintmillAPI_ImageDesc.h"

#include <cstring>

namespace TintmillObjectTest
{
/** Keeps what it is given. */
class FKeepingLookBuilder : public StandIn::ILookBuilder
{
public:
	virtual void Open(const StandIn::FLookBuilderRequest& Request) override { Requests.Add(Request); }

	TArray<StandIn::FLookBuilderRequest> Requests;
};

class TintmillObject : public TintmillTest::FLookTestBase
{
protected:
	TintmillObject() { StandIn::SetLookBuilder(&Builder); }
	virtual ~TintmillObject() override { StandIn::SetLookBuilder(nullptr); }

	/** The description of a picture of two pixels. */
	FTintmillAPI_ImageDesc TwoPixels()
	{
		FTintmillAPI_ImageDesc ImageDesc;
		std::memset(&ImageDesc, 0, sizeof(ImageDesc));
		ImageDesc.Kind = 1;
		ImageDesc.Pixels = Bytes;
		ImageDesc.Width = 2;
		ImageDesc.Height = 1;
		ImageDesc.RowLength = 2;
		return ImageDesc;
	}

	uint8 Bytes[8] = {1, 2, 3, 4, 5, 6, 7, 8};
	FKeepingLookBuilder Builder;
};

TEST_F(TintmillObject, OpensTheLookBuilderOnItself)
{
	FTintmillAPI_ImageDesc ImageDesc = TwoPixels();
	UTintmillObject* const Asset = NewLook();
	Asset->DisplayUserInterface(ImageDesc);
	EXPECT_EQ(Builder.Requests[0].Asset, Asset);
}

TEST_F(TintmillObject, HandsOverACopyOfThePixels)
{
	FTintmillAPI_ImageDesc ImageDesc = TwoPixels();
	NewLook()->DisplayUserInterface(ImageDesc);
	Bytes[7] = 99;
	EXPECT_EQ(Builder.Requests[0].Pixels, TArray<uint8>({1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST_F(TintmillObject, HandsOverTheSizeOfThePicture)
{
	FTintmillAPI_ImageDesc ImageDesc = TwoPixels();
	NewLook()->DisplayUserInterface(ImageDesc);
	EXPECT_EQ(Builder.Requests[0].ImageDesc.Width, 2);
}

TEST_F(TintmillObject, TakesAnEmptyBufferWithASize)
{
	FTintmillAPI_ImageDesc ImageDesc = TwoPixels();
	ImageDesc.Pixels = nullptr;
	NewLook()->DisplayUserInterface(ImageDesc);
	EXPECT_EQ(Builder.Requests[0].Pixels.Num(), 0);
}

TEST_F(TintmillObject, LeavesTheDescriptionAsItWas)
{
	FTintmillAPI_ImageDesc ImageDesc = TwoPixels();
	NewLook()->DisplayUserInterface(ImageDesc);
	EXPECT_EQ(ImageDesc.Pixels, Bytes);
}

TEST_F(TintmillObject, IsCopiedByTheDefaultReceiver)
{
	StandIn::SetLookBuilder(nullptr);
	FTintmillAPI_ImageDesc ImageDesc = TwoPixels();
	NewLook()->DisplayUserInterface(ImageDesc);
	EXPECT_EQ(StandIn::GetLastLookBuilderRequest()->Pixels, TArray<uint8>({1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST_F(TintmillObject, GivesTheReceiverBackThatWasInstalled)
{
	EXPECT_EQ(StandIn::SetLookBuilder(nullptr), &Builder);
}
}
