// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/LookBuilder.h"

#include "Templates/UniquePtr.h"
#include "TintmillLog.h"
#include "TintmillLookBuilderAccess.h"
#include "TintmillObject.h"

namespace LookBuilderPrivate
{
/** Logs each request and keeps a copy of the last one. */
class FDefaultLookBuilder : public StandIn::ILookBuilder
{
public:
	virtual void Open(const StandIn::FLookBuilderRequest& Request) override
	{
		UE_LOG(LogTintmill, Log, TEXT("The look builder was opened for %s on a picture of %d x %d pixels."), *Request.Asset->GetPathName(),
			Request.ImageDesc.Width, Request.ImageDesc.Height);
		Last = MakeUnique<StandIn::FLookBuilderRequest>(Request);
		Last->ImageDesc.Pixels = Last->Pixels.Num() > 0 ? Last->Pixels.GetData() : nullptr;
		Last->BorrowedPixels = nullptr;
	}

	TUniquePtr<StandIn::FLookBuilderRequest> Last;
};

static FDefaultLookBuilder& Default()
{
	static FDefaultLookBuilder Builder;
	return Builder;
}

static StandIn::ILookBuilder* Installed = nullptr;
}

namespace StandIn
{
ILookBuilder* SetLookBuilder(ILookBuilder* LookBuilder)
{
	ILookBuilder* const Before = LookBuilderPrivate::Installed;
	LookBuilderPrivate::Installed = LookBuilder;
	return Before;
}

const FLookBuilderRequest* GetLastLookBuilderRequest()
{
	return LookBuilderPrivate::Default().Last.Get();
}
}

namespace TintmillLookBuilder
{
void Open(const StandIn::FLookBuilderRequest& Request)
{
	StandIn::ILookBuilder& Builder =
		LookBuilderPrivate::Installed != nullptr ? *LookBuilderPrivate::Installed : LookBuilderPrivate::Default();
	Builder.Open(Request);
}
}
