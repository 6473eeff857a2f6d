// Copyright The Tintmill authors. All rights reserved.

#include "Toolkits/SimpleAssetEditor.h"
#include "StandIn/FatalHandler.h"
#include "StandIn/SimpleAssetEditors.h"

namespace SimpleAssetEditorPrivate
{
StandIn::FSimpleAssetEditorCall& GetCall()
{
	static StandIn::FSimpleAssetEditorCall Call;
	return Call;
}
}

void StandIn::SetSimpleAssetEditor(const FSimpleAssetEditorCall& Call)
{
	SimpleAssetEditorPrivate::GetCall() = Call;
}

TSharedRef<FSimpleAssetEditor> FSimpleAssetEditor::CreateEditor(
	const EToolkitMode::Type Mode, const TSharedPtr<IToolkitHost>& InitToolkitHost, UObject* ObjectToEdit)
{
	return CreateEditor(Mode, InitToolkitHost, TArray<UObject*>({ObjectToEdit}));
}

TSharedRef<FSimpleAssetEditor> FSimpleAssetEditor::CreateEditor(
	const EToolkitMode::Type, const TSharedPtr<IToolkitHost>&, const TArray<UObject*>& ObjectsToEdit)
{
	if (SimpleAssetEditorPrivate::GetCall())
	{
		SimpleAssetEditorPrivate::GetCall()(ObjectsToEdit);
	}
	else
	{
		STANDIN_MISSING(TEXT("FSimpleAssetEditor::CreateEditor"));
	}
	return MakeShared<FSimpleAssetEditor>();
}
