// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "StandIn/LookFiles.h"
#include "StandIn/Notices.h"
#include "StandIn/ObjectSystem.h"
#include "Tintmill/TemporaryFolder.h"
#include "TintmillObject.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

namespace TintmillTest
{
/** A .cube that takes every channel to its opposite. */
static const char* const InvertingCube = "LUT_1D_SIZE 2\n1 1 1\n0 0 0\n";

/** Tests with the object system running, a folder for look files and no notices. */
class FLookTestBase : public testing::Test
{
protected:
	FLookTestBase()
	{
		StandIn::StartObjectSystem();
		StandIn::ClearNotices();
	}

	virtual ~FLookTestBase() override { StandIn::ClearNotices(); }

	/** A new look asset with nothing in it. */
	UTintmillObject* NewLook(const TCHAR* Name = TEXT("Teal"))
	{
		UTintmillObject* const Asset = NewObject<UTintmillObject>(GetTransientPackage(), UTintmillObject::StaticClass(), FName(Name));
		// An asset of an earlier test may have had the name.
		Asset->Look.Reset();
		return Asset;
	}

	/** Writes a look file and gives it to the asset. */
	bool Load(UTintmillObject* Asset, const std::string& Text, const std::string& Name = "Teal.cube")
	{
		return StandIn::LoadLookFile(Asset, FString(UTF8_TO_TCHAR(Folder.Write(Name, Text).string().c_str())));
	}

	/** The texts of all notices, one a line. */
	static std::string NoticeTexts()
	{
		std::string Texts;
		for (const StandIn::FNotice& Notice : StandIn::GetNotices())
		{
			Texts += TCHAR_TO_UTF8(*Notice.Text);
			Texts += "\n";
		}
		return Texts;
	}

	FTemporaryFolder Folder;
};
}
