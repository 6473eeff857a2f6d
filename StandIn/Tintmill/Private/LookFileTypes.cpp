// Copyright The Tintmill authors. All rights reserved.

#include "CoreMinimal.h"
#include "Containers/StringConv.h"
#include "LookFileCheck.h"
#include "LookFileNew.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/LookFiles.h"
#include "TintmillObject.h"

namespace LookFileTypesPrivate
{
/** Makes look files known as assets while this library is in memory. */
class FLookFileTypes
{
public:
	FLookFileTypes()
	{
		for (const std::string& Extension : LookFile::KnownExtensions())
		{
			StandIn::FAssetFileType Type;
			Type.Extension = UTF8_TO_TCHAR(Extension.c_str());
			Type.ClassName = FName(TEXT("TintmillObject"));
			Type.Load = [](UObject* Asset, const FString& FileName) {
				StandIn::LoadLookFile(static_cast<UTintmillObject*>(Asset), FileName);
			};
			if (Extension == LookFile::NewLookExtension)
			{
				Type.WriteNew = &LookFile::WriteNewLook;
			}
			StandIn::RegisterAssetFileType(Type);
		}
	}

	~FLookFileTypes()
	{
		for (const std::string& Extension : LookFile::KnownExtensions())
		{
			StandIn::UnregisterAssetFileType(UTF8_TO_TCHAR(Extension.c_str()));
		}
	}
};

static const FLookFileTypes LookFileTypes;
}
