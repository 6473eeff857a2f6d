// Copyright The Tintmill authors. All rights reserved.

#include "Editor.h"

#include "StandIn/Registrations.h"

FEditorDelegates::FOnMapChanged FEditorDelegates::MapChange;
FEditorDelegates::FOnMapOpened FEditorDelegates::OnMapOpened;
FEditorDelegates::FOnPIEEvent FEditorDelegates::PreBeginPIE;
FEditorDelegates::FOnPIEEvent FEditorDelegates::BeginPIE;
FEditorDelegates::FOnPIEEvent FEditorDelegates::PostPIEStarted;
FEditorDelegates::FOnPIEEvent FEditorDelegates::PrePIEEnded;
FEditorDelegates::FOnPIEEvent FEditorDelegates::EndPIE;
FEditorDelegates::FOnPIEEvent FEditorDelegates::PausePIE;
FEditorDelegates::FOnPIEEvent FEditorDelegates::ResumePIE;
FEditorDelegates::FOnPIEEvent FEditorDelegates::SingleStepPIE;
FEditorDelegates::FOnPIEEvent FEditorDelegates::OnPreSwitchBeginPIEAndSIE;
FEditorDelegates::FOnPIEEvent FEditorDelegates::OnSwitchBeginPIEAndSIE;
FSimpleMulticastDelegate FEditorDelegates::CancelPIE;
FEditorDelegates::FOnNewAssetCreation FEditorDelegates::OnConfigureNewAssetProperties;

namespace
{
const bool bEditorDelegatesListed = []() {
	StandIn::AddDelegate(TEXT("FEditorDelegates::MapChange"), FEditorDelegates::MapChange);
	StandIn::AddDelegate(TEXT("FEditorDelegates::OnMapOpened"), FEditorDelegates::OnMapOpened);
	StandIn::AddDelegate(TEXT("FEditorDelegates::PreBeginPIE"), FEditorDelegates::PreBeginPIE);
	StandIn::AddDelegate(TEXT("FEditorDelegates::BeginPIE"), FEditorDelegates::BeginPIE);
	StandIn::AddDelegate(TEXT("FEditorDelegates::PostPIEStarted"), FEditorDelegates::PostPIEStarted);
	StandIn::AddDelegate(TEXT("FEditorDelegates::PrePIEEnded"), FEditorDelegates::PrePIEEnded);
	StandIn::AddDelegate(TEXT("FEditorDelegates::EndPIE"), FEditorDelegates::EndPIE);
	StandIn::AddDelegate(TEXT("FEditorDelegates::PausePIE"), FEditorDelegates::PausePIE);
	StandIn::AddDelegate(TEXT("FEditorDelegates::ResumePIE"), FEditorDelegates::ResumePIE);
	StandIn::AddDelegate(TEXT("FEditorDelegates::SingleStepPIE"), FEditorDelegates::SingleStepPIE);
	StandIn::AddDelegate(TEXT("FEditorDelegates::OnPreSwitchBeginPIEAndSIE"), FEditorDelegates::OnPreSwitchBeginPIEAndSIE);
	StandIn::AddDelegate(TEXT("FEditorDelegates::OnSwitchBeginPIEAndSIE"), FEditorDelegates::OnSwitchBeginPIEAndSIE);
	StandIn::AddDelegate(TEXT("FEditorDelegates::CancelPIE"), FEditorDelegates::CancelPIE);
	StandIn::AddDelegate(TEXT("FEditorDelegates::OnConfigureNewAssetProperties"), FEditorDelegates::OnConfigureNewAssetProperties);
	return true;
}();
}
