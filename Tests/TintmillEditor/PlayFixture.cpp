// Copyright The Tintmill authors. All rights reserved.

#include "TintmillEditor/PlayFixture.h"

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Engine/GameViewportClient.h"
#include "LevelEditorViewport.h"
#include "SLevelViewport.h"
#include "Settings/LevelEditorPlaySettings.h"
#include "StandIn/LevelEditorPanes.h"
#include "StandIn/PlaySession.h"
#include "StandIn/Registrations.h"
#include "TintmillDisplayManager.h"
#include "TintmillObject.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#include <sstream>

FPlayFixture::FPlayFixture()
{
	WriteLook("Teal");
	WriteLook("Amber");
}

FPlayFixture::~FPlayFixture()
{
	StandIn::SetPlayCheck(TFunction<bool()>());
	StandIn::SetGameInstanceCheck(TFunction<bool(int32)>());
}

UTintmillObject* FPlayFixture::LoadLook(const TCHAR* Name)
{
	UTintmillObject* const Look = LoadObject<UTintmillObject>(nullptr, *FString::Printf(TEXT("/Game/Looks/%s.%s"), Name, Name));
	EXPECT_NE(Look, nullptr);
	return Look;
}

FTintmillDisplayConfiguration& FPlayFixture::Record(int32 Number)
{
	return GetDisplayManager().FindOrAddDisplayConfiguration(GetClient(Number));
}

void FPlayFixture::Display(int32 Number, bool bEnable, float Intensity, const TCHAR* Look)
{
	FTintmillDisplayConfiguration& Changed = Record(Number);
	Changed.bEnableDisplay = bEnable;
	Changed.Intensity = Intensity;
	Changed.LookAsset = *Look != 0 ? LoadLook(Look) : nullptr;
}

void FPlayFixture::Activate(int32 Number)
{
	StandIn::ActivatePane(GetPane(Number)->GetConfigKey());
}

void FPlayFixture::PlayInPane(int32 Number, EPlaySessionWorldType WorldType)
{
	FRequestPlaySessionParams Params;
	Params.WorldType = WorldType;
	Params.DestinationSlateViewport = TWeakPtr<IAssetViewport>(GetPane(Number));
	Play(Number, Params);
}

void FPlayFixture::PlayInWindow(int32 Number)
{
	Play(Number, FRequestPlaySessionParams());
}

void FPlayFixture::Play(int32 Number, const FRequestPlaySessionParams& Params)
{
	Activate(Number);
	GEditor->RequestPlaySession(Params);
	EngineLoop->Tick();
}

void FPlayFixture::EndPlay()
{
	GEditor->RequestEndPlayMap();
	EngineLoop->Tick();
}

void FPlayFixture::SetPlayers(int32 Number)
{
	GetMutableDefault<ULevelEditorPlaySettings>()->SetPlayNumberOfClients(Number);
}

FViewportClient* FPlayFixture::GetGameClient()
{
	return GEditor->GameViewport;
}

std::string FPlayFixture::Describe(const FViewportClient* Client)
{
	const FTintmillDisplayConfiguration* const Found = GetDisplayManager().GetDisplayConfiguration(Client);
	if (!Found)
	{
		return "nothing";
	}
	std::ostringstream Text;
	Text << (Found->bEnableDisplay ? "on " : "off ") << Found->Intensity << ' ' << (Found->LookAsset ? LookName(Found) : "none");
	return Text.str();
}

std::string FPlayFixture::DescribePanes()
{
	std::string Text;
	for (int32 Number = 0; Number < StandIn::GetPanes().Num(); ++Number)
	{
		Text += (Number > 0 ? ", " : "") + Describe(GetClient(Number));
	}
	return Text;
}

int32 FPlayFixture::CountFeatureLevelHandlers(const void* Owner)
{
	int32 Count = 0;
	for (const StandIn::FRegistration& Registration : StandIn::ListRegistrations())
	{
		Count += Registration.Name == TEXT("UWorld::OnFeatureLevelChanged") && Registration.Owner == Owner ? 1 : 0;
	}
	return Count;
}
