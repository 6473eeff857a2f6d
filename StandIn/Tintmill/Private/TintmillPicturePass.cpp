// Copyright The Tintmill authors. All rights reserved.

#include "TintmillPicturePass.h"

#include "LookBlend.h"
#include "StandIn/Notices.h"
#include "TintmillDisplayManager.h"
#include "TintmillLook.h"
#include "TintmillLookAssets.h"
#include "TintmillObject.h"

static_assert(sizeof(FColor) == 4, "pixels are four bytes: blue, green, red, alpha");

FTintmillPicturePass::FTintmillPicturePass(const FTintmillDisplayManager& InDisplayManager)
	: DisplayManager(InDisplayManager)
{}

FName FTintmillPicturePass::GetName() const
{
	return FName(TEXT("TintmillLook"));
}

void FTintmillPicturePass::Apply(FViewportClient* Client, const FIntPoint& Size, FColor* Pixels)
{
	const FTintmillDisplayConfiguration* const Configuration = FindActive(Client);
	if (Configuration == nullptr)
	{
		return;
	}
	if (const FTintmillLook* const Look = FindReadyLook(*Configuration))
	{
		LookGrading::ApplyLook(*Look->Grader, LookGrading::WeightOf(Configuration->Intensity), reinterpret_cast<uint8*>(Pixels),
			static_cast<std::size_t>(Size.X) * static_cast<std::size_t>(Size.Y), LookGrading::EByteOrder::BlueFirst);
		return;
	}
	StandIn::TellLookProblem(Configuration->LookAsset);
	if (StandIn::GetLookState(Configuration->LookAsset) == StandIn::ELookState::None)
	{
		// Whoever switches on a new, empty look would otherwise wait for a change that cannot come.
		StandIn::AddNotice(StandIn::GetLookNoticeKey(Configuration->LookAsset),
			Configuration->LookAsset->GetName()
				+ TEXT(" has no look file, so it leaves the picture as it is; choose a look that comes from a file."));
	}
}

uint64 FTintmillPicturePass::GetStateKey(FViewportClient* Client) const
{
	const FTintmillDisplayConfiguration* const Configuration = FindActive(Client);
	if (Configuration == nullptr)
	{
		return 1;
	}
	const FTintmillLook* const Look = FindReadyLook(*Configuration);
	return Look == nullptr ? 2 : 3 + ((Look->Revision << 17) | LookGrading::WeightOf(Configuration->Intensity));
}

const FTintmillDisplayConfiguration* FTintmillPicturePass::FindActive(const FViewportClient* Client) const
{
	const FTintmillDisplayConfiguration* const Configuration = DisplayManager.GetDisplayConfiguration(Client);
	const bool bActive = Configuration != nullptr && Configuration->bEnableDisplay && LookGrading::WeightOf(Configuration->Intensity) > 0
		&& TintmillLookAssets::IsLiving(Configuration->LookAsset);
	return bActive ? Configuration : nullptr;
}

const FTintmillLook* FTintmillPicturePass::FindReadyLook(const FTintmillDisplayConfiguration& Configuration) const
{
	const FTintmillLook* const Look = Configuration.LookAsset->Look.Get();
	return Look != nullptr && Look->State == StandIn::ELookState::Ready ? Look : nullptr;
}
