// Copyright The Tintmill authors. All rights reserved.

#include "Engine/World.h"

#include "Engine/GameViewportClient.h"
#include "StandIn/Registrations.h"

FWorldDelegates::FWorldInitializationEvent FWorldDelegates::OnPreWorldInitialization;
FWorldDelegates::FWorldInitializationEvent FWorldDelegates::OnPostWorldInitialization;
FWorldDelegates::FWorldEvent FWorldDelegates::OnWorldBeginTearDown;
FWorldDelegates::FWorldCleanupEvent FWorldDelegates::OnWorldCleanup;
FWorldDelegates::FWorldCleanupEvent FWorldDelegates::OnPostWorldCleanup;

namespace
{
const bool bWorldDelegatesListed = []() {
	StandIn::AddDelegate(TEXT("FWorldDelegates::OnPreWorldInitialization"), FWorldDelegates::OnPreWorldInitialization);
	StandIn::AddDelegate(TEXT("FWorldDelegates::OnPostWorldInitialization"), FWorldDelegates::OnPostWorldInitialization);
	StandIn::AddDelegate(TEXT("FWorldDelegates::OnWorldBeginTearDown"), FWorldDelegates::OnWorldBeginTearDown);
	StandIn::AddDelegate(TEXT("FWorldDelegates::OnWorldCleanup"), FWorldDelegates::OnWorldCleanup);
	StandIn::AddDelegate(TEXT("FWorldDelegates::OnPostWorldCleanup"), FWorldDelegates::OnPostWorldCleanup);
	StandIn::AddDelegate(TEXT("UGameViewportClient::OnViewportCreated"), UGameViewportClient::OnViewportCreated());
	StandIn::AddDelegate(TEXT("FViewport::ViewportResizedEvent"), FViewport::ViewportResizedEvent);
	return true;
}();
}
