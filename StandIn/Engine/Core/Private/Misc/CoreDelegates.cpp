// Copyright The Tintmill authors. All rights reserved.

#include "Misc/CoreDelegates.h"

#include "StandIn/Registrations.h"

FSimpleMulticastDelegate FCoreDelegates::OnFEngineLoopInitComplete;
FSimpleMulticastDelegate FCoreDelegates::OnPostEngineInit;
FSimpleMulticastDelegate FCoreDelegates::OnAllModuleLoadingPhasesComplete;
FSimpleMulticastDelegate FCoreDelegates::OnInit;
FSimpleMulticastDelegate FCoreDelegates::OnEnginePreExit;
FSimpleMulticastDelegate FCoreDelegates::OnPreExit;
FSimpleMulticastDelegate FCoreDelegates::OnExit;
FSimpleMulticastDelegate FCoreDelegates::OnBeginFrame;
FSimpleMulticastDelegate FCoreDelegates::OnEndFrame;
FSimpleMulticastDelegate FCoreDelegates::ConfigReadyForUse;

namespace
{
/** Lists the delegates' bindings. */
struct FCoreDelegatesListing
{
	FCoreDelegatesListing()
	{
		StandIn::AddGlobalDelegate(TEXT("FCoreDelegates::OnFEngineLoopInitComplete"), FCoreDelegates::OnFEngineLoopInitComplete);
		StandIn::AddGlobalDelegate(TEXT("FCoreDelegates::OnPostEngineInit"), FCoreDelegates::OnPostEngineInit);
		StandIn::AddGlobalDelegate(
			TEXT("FCoreDelegates::OnAllModuleLoadingPhasesComplete"), FCoreDelegates::OnAllModuleLoadingPhasesComplete);
		StandIn::AddGlobalDelegate(TEXT("FCoreDelegates::OnInit"), FCoreDelegates::OnInit);
		StandIn::AddGlobalDelegate(TEXT("FCoreDelegates::OnEnginePreExit"), FCoreDelegates::OnEnginePreExit);
		StandIn::AddGlobalDelegate(TEXT("FCoreDelegates::OnPreExit"), FCoreDelegates::OnPreExit);
		StandIn::AddGlobalDelegate(TEXT("FCoreDelegates::OnExit"), FCoreDelegates::OnExit);
		StandIn::AddGlobalDelegate(TEXT("FCoreDelegates::OnBeginFrame"), FCoreDelegates::OnBeginFrame);
		StandIn::AddGlobalDelegate(TEXT("FCoreDelegates::OnEndFrame"), FCoreDelegates::OnEndFrame);
	}
};
FCoreDelegatesListing CoreDelegatesListing;
}

namespace
{
/** Lists the delegates above from the moment they exist. */
const bool bCoreDelegatesListed = [] {
	StandIn::AddGlobalDelegate(TEXT("FCoreDelegates::OnFEngineLoopInitComplete"), FCoreDelegates::OnFEngineLoopInitComplete);
	StandIn::AddGlobalDelegate(TEXT("FCoreDelegates::OnPostEngineInit"), FCoreDelegates::OnPostEngineInit);
	StandIn::AddGlobalDelegate(TEXT("FCoreDelegates::OnAllModuleLoadingPhasesComplete"), FCoreDelegates::OnAllModuleLoadingPhasesComplete);
	StandIn::AddGlobalDelegate(TEXT("FCoreDelegates::OnInit"), FCoreDelegates::OnInit);
	StandIn::AddGlobalDelegate(TEXT("FCoreDelegates::OnEnginePreExit"), FCoreDelegates::OnEnginePreExit);
	StandIn::AddGlobalDelegate(TEXT("FCoreDelegates::OnPreExit"), FCoreDelegates::OnPreExit);
	StandIn::AddGlobalDelegate(TEXT("FCoreDelegates::OnExit"), FCoreDelegates::OnExit);
	StandIn::AddGlobalDelegate(TEXT("FCoreDelegates::OnBeginFrame"), FCoreDelegates::OnBeginFrame);
	StandIn::AddGlobalDelegate(TEXT("FCoreDelegates::OnEndFrame"), FCoreDelegates::OnEndFrame);
	StandIn::AddGlobalDelegate(TEXT("FCoreDelegates::ConfigReadyForUse"), FCoreDelegates::ConfigReadyForUse);
	return true;
}();
}
