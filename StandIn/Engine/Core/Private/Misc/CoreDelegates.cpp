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
/** Lists the delegates above from the moment they exist. */
const bool bCoreDelegatesListed = [] {
	StandIn::AddDelegate(TEXT("FCoreDelegates::OnFEngineLoopInitComplete"), FCoreDelegates::OnFEngineLoopInitComplete);
	StandIn::AddDelegate(TEXT("FCoreDelegates::OnPostEngineInit"), FCoreDelegates::OnPostEngineInit);
	StandIn::AddDelegate(TEXT("FCoreDelegates::OnAllModuleLoadingPhasesComplete"), FCoreDelegates::OnAllModuleLoadingPhasesComplete);
	StandIn::AddDelegate(TEXT("FCoreDelegates::OnInit"), FCoreDelegates::OnInit);
	StandIn::AddDelegate(TEXT("FCoreDelegates::OnEnginePreExit"), FCoreDelegates::OnEnginePreExit);
	StandIn::AddDelegate(TEXT("FCoreDelegates::OnPreExit"), FCoreDelegates::OnPreExit);
	StandIn::AddDelegate(TEXT("FCoreDelegates::OnExit"), FCoreDelegates::OnExit);
	StandIn::AddDelegate(TEXT("FCoreDelegates::OnBeginFrame"), FCoreDelegates::OnBeginFrame);
	StandIn::AddDelegate(TEXT("FCoreDelegates::OnEndFrame"), FCoreDelegates::OnEndFrame);
	StandIn::AddDelegate(TEXT("FCoreDelegates::ConfigReadyForUse"), FCoreDelegates::ConfigReadyForUse);
	return true;
}();
}
