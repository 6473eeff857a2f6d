// Copyright The Tintmill authors. All rights reserved.

#include "TintmillModule.h"

#include "Modules/ModuleManager.h"
#include "StandIn/PicturePass.h"
#include "TintmillDisplayManager.h"
#include "TintmillPicturePass.h"

IMPLEMENT_MODULE(FTintmillModule, Tintmill)

FTintmillModule::FTintmillModule()
	: DisplayManager(MakeUnique<FTintmillDisplayManager>())
	, PicturePass(MakeUnique<FTintmillPicturePass>(*DisplayManager))
{}

FTintmillModule::~FTintmillModule() {}

FTintmillDisplayManager* FTintmillModule::GetDisplayManager()
{
	return DisplayManager.Get();
}

void FTintmillModule::StartupModule()
{
	StandIn::RegisterPicturePass(PicturePass.Get());
}

void FTintmillModule::ShutdownModule()
{
	StandIn::UnregisterPicturePass(PicturePass.Get());
}
