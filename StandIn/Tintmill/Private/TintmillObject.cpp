// Copyright The Tintmill authors. All rights reserved.

#include "TintmillObject.h"

#include "StandIn/LookBuilder.h"
#include "TintmillAPI_ImageDesc.h"
#include "TintmillLook.h"
#include "TintmillLookAssets.h"
#include "TintmillLookBuilderAccess.h"

UTintmillObject::UTintmillObject()
{
	TintmillLookAssets::Add(this);
}

UTintmillObject::~UTintmillObject()
{
	TintmillLookAssets::Remove(this);
}

void UTintmillObject::DisplayUserInterface(FTintmillAPI_ImageDesc& ImageDesc)
{
	StandIn::FLookBuilderRequest Request;
	Request.Asset = this;
	Request.ImageDesc = ImageDesc;
	Request.BorrowedPixels = ImageDesc.Pixels;
	// A caller whose picture could not be read hands over a size and no pixels.
	if (ImageDesc.Pixels != nullptr && ImageDesc.RowLength > 0 && ImageDesc.Height > 0)
	{
		Request.Pixels.Append(ImageDesc.Pixels, 4 * ImageDesc.RowLength * ImageDesc.Height);
	}
	Request.ImageDesc.Pixels = Request.Pixels.Num() > 0 ? Request.Pixels.GetData() : nullptr;
	TintmillLookBuilder::Open(Request);
}
