// Copyright The Tintmill authors. All rights reserved.

#include "Toolkits/SimpleAssetEditor.h"
#include "StandIn/FatalHandler.h"

TSharedRef<FSimpleAssetEditor> FSimpleAssetEditor::CreateEditor(
	const EToolkitMode::Type Mode, const TSharedPtr<IToolkitHost>& InitToolkitHost, UObject* ObjectToEdit)
{
	return CreateEditor(Mode, InitToolkitHost, TArray<UObject*>({ObjectToEdit}));
}

TSharedRef<FSimpleAssetEditor> FSimpleAssetEditor::CreateEditor(
	const EToolkitMode::Type, const TSharedPtr<IToolkitHost>&, const TArray<UObject*>&)
{
	STANDIN_MISSING(TEXT("FSimpleAssetEditor::CreateEditor"));
	return MakeShared<FSimpleAssetEditor>();
}
