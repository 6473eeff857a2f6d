// Copyright The Tintmill authors. All rights reserved.

#include "Settings/LevelEditorPlaySettings.h"

ULevelEditorPlaySettings::ULevelEditorPlaySettings(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, PlayNumberOfClients(1)
{}
