// Copyright The Tintmill authors. All rights reserved.

#include "Host/Assets/TextureAssets.h"

#include "AssetToolsModule.h"
#include "AssetTypeActions_Base.h"
#include "Engine/Texture2D.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/Notices.h"
#include "StandIn/SimpleAssetEditors.h"
#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "AssetTypeActions"

namespace TintmillHost
{
namespace
{
const TCHAR* const TextureExtension = TEXT("png");

/** The editor's actions for textures, as far as there is something to do with them. */
class FTextureActions : public FAssetTypeActions_Base
{
public:
	virtual FText GetName() const override { return LOCTEXT("AssetTypeActions_Texture", "Texture"); }
	virtual UClass* GetSupportedClass() const override { return UTexture2D::StaticClass(); }
	virtual FColor GetTypeColor() const override { return FColor(192, 64, 64); }
	virtual uint32 GetCategories() override { return EAssetTypeCategories::MaterialsAndTextures; }
	virtual bool IsImportedAsset() const override { return true; }
};

void SayThatThereIsNoEditor(const TArray<UObject*>& Assets)
{
	for (const UObject* const Asset : Assets)
	{
		// Said again at each try.
		const FString Key = TEXT("NoEditor:") + Asset->GetPathName();
		StandIn::ClearNotice(Key);
		StandIn::AddNotice(Key,
			FString::Printf(TEXT("%s was not opened: there is no editor for assets of the class %s here."), *Asset->GetPathName(),
				*Asset->GetClass()->GetName()));
	}
}
}

FTextureFiles::FTextureFiles()
{
	StandIn::FAssetFileType Type;
	Type.Extension = TextureExtension;
	Type.ClassName = FName(TEXT("Texture2D"));
	Type.bYields = true;
	StandIn::RegisterAssetFileType(Type);
}

FTextureFiles::~FTextureFiles()
{
	StandIn::UnregisterAssetFileType(TextureExtension);
}

FOtherAssets::FOtherAssets()
	: TextureActions(MakeShared<FTextureActions>())
{
	FAssetToolsModule::GetModule().Get().RegisterAssetTypeActions(TextureActions.ToSharedRef());
	StandIn::SetSimpleAssetEditor(&SayThatThereIsNoEditor);
}

FOtherAssets::~FOtherAssets()
{
	StandIn::SetSimpleAssetEditor(StandIn::FSimpleAssetEditorCall());
	if (FModuleManager::Get().IsModuleLoaded(TEXT("AssetTools")))
	{
		FAssetToolsModule::GetModule().Get().UnregisterAssetTypeActions(TextureActions.ToSharedRef());
	}
}
}

#undef LOCTEXT_NAMESPACE
