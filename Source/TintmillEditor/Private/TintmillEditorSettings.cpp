// Copyright The Tintmill authors. All rights reserved.

#include "TintmillEditorSettings.h"

FTintmillDisplayConfiguration* UTintmillLevelViewportSettings::FindDisplayConfiguration(FName InViewportIdentifier)
{
	FTMLPerViewportDisplaySettingPair* const Pair =
		ViewportsSettings.FindByPredicate([InViewportIdentifier](const FTMLPerViewportDisplaySettingPair& Candidate) {
			return Candidate.ViewportIdentifier == InViewportIdentifier;
		});
	return Pair ? &Pair->DisplayConfiguration : nullptr;
}

void UTintmillLevelViewportSettings::SetDisplayConfiguration(
	const FName& InViewportIdentifier, const FTintmillDisplayConfiguration& InDisplayConfiguration)
{
	if (FTintmillDisplayConfiguration* const Existing = FindDisplayConfiguration(InViewportIdentifier))
	{
		*Existing = InDisplayConfiguration;
		return;
	}

	FTMLPerViewportDisplaySettingPair NewPair;
	NewPair.ViewportIdentifier = InViewportIdentifier;
	NewPair.DisplayConfiguration = InDisplayConfiguration;
	ViewportsSettings.Add(NewPair);
}
