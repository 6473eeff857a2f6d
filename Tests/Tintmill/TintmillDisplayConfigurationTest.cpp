// Copyright The Tintmill authors. All rights reserved.

#include "TintmillDisplayConfiguration.h"

#include "Tintmill/LookTestBase.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

namespace TintmillDisplayConfigurationTest
{
class TintmillDisplayConfiguration : public TintmillTest::FLookTestBase
{
protected:
	/** The record as text, as it stands in a settings file. */
	static std::string Exported(const FTintmillDisplayConfiguration& Configuration)
	{
		FString Text;
		FTintmillDisplayConfiguration::StaticStruct()->ExportText(Text, &Configuration, nullptr, nullptr, PPF_None, nullptr);
		return TCHAR_TO_UTF8(*Text);
	}
};

TEST_F(TintmillDisplayConfiguration, IsSwitchedOffAtFirst)
{
	EXPECT_FALSE(FTintmillDisplayConfiguration().bEnableDisplay);
}

TEST_F(TintmillDisplayConfiguration, HasFullIntensityAtFirst)
{
	EXPECT_EQ(FTintmillDisplayConfiguration().Intensity, 1.0f);
}

TEST_F(TintmillDisplayConfiguration, HasNoLookAtFirst)
{
	EXPECT_EQ(FTintmillDisplayConfiguration().LookAsset, nullptr);
}

TEST_F(TintmillDisplayConfiguration, HasItsFieldsInOrder)
{
	EXPECT_TRUE(offsetof(FTintmillDisplayConfiguration, bEnableDisplay) == 0 && offsetof(FTintmillDisplayConfiguration, Intensity) == 4
		&& offsetof(FTintmillDisplayConfiguration, LookAsset) == 8);
}

TEST_F(TintmillDisplayConfiguration, ExportsEveryFieldOfADefaultRecord)
{
	EXPECT_EQ(Exported(FTintmillDisplayConfiguration()), "(bEnableDisplay=False,Intensity=1.000000,LookAsset=None)");
}

TEST_F(TintmillDisplayConfiguration, ExportsTheLookByItsPath)
{
	UPackage* const Package = CreatePackage(TEXT("/Game/Looks/TealExport"));
	FTintmillDisplayConfiguration Configuration;
	Configuration.bEnableDisplay = true;
	Configuration.LookAsset = NewObject<UTintmillObject>(Package, FName(TEXT("TealExport")));
	EXPECT_EQ(Exported(Configuration),
		"(bEnableDisplay=True,Intensity=1.000000,LookAsset=TintmillObject'\"/Game/Looks/TealExport.TealExport\"')");
}
}
