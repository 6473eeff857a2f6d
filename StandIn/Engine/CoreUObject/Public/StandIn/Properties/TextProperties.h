// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "StandIn/Properties/TProperty.h"
#include "Containers/UnrealString.h"
#include "Internationalization/Text.h"
#include "UObject/NameTypes.h"

// Names, strings and localised texts; part of UObject/UnrealType.h. Names are quoted without escapes inside of structs.

/** Declares the property of one text type. */
#define STANDIN_DECLARE_TEXT_PROPERTY(TName, TCpp) \
	class COREUOBJECT_API TName : public TProperty<TCpp, FProperty> \
	{ \
		DECLARE_FIELD(TName, FProperty, CASTCLASS_##TName) \
\
		TName(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags) \
			: TProperty<TCpp, FProperty>(InOwner, InName, InObjectFlags, StaticClass(), InOffset, InFlags) \
		{} \
		virtual void LinkInternal() override; \
		virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override; \
		virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override; \
		virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, \
			int32 PortFlags, UObject* ExportRootScope = nullptr) const override; \
\
	protected: \
		virtual const TCHAR* ImportText_Internal( \
			const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const override; \
	};

STANDIN_DECLARE_TEXT_PROPERTY(FNameProperty, FName)
STANDIN_DECLARE_TEXT_PROPERTY(FStrProperty, FString)
STANDIN_DECLARE_TEXT_PROPERTY(FTextProperty, FText)
