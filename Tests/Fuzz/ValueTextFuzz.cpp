// Copyright The Tintmill authors. All rights reserved.

#include "CoreTestValues.h"
#include "Misc/OutputDevice.h"
#include "StandIn/ObjectSystem.h"
#include "UObject/UnrealType.h"

#include <cstdint>
#include <cstdlib>
#include <string>

// Values as text, as settings files hold them: what is written of a value that was read reads as the same value.

namespace
{
class FNoErrors : public FOutputDevice
{
public:
	using FOutputDevice::Serialize;
	virtual void Serialize(const TCHAR*, ELogVerbosity::Type, const FName&) override {}
};

bool Read(const FString& Text, FCoreTestValues& OutValues)
{
	FNoErrors Errors;
	UScriptStruct* const Struct = FCoreTestValues::StaticStruct();
	return Struct->ImportText(*Text, &OutValues, nullptr, PPF_None, &Errors, Struct->GetName()) != nullptr;
}

FString Write(const FCoreTestValues& Values)
{
	FString Text;
	FCoreTestValues::StaticStruct()->ExportText(Text, &Values, nullptr, nullptr, PPF_None, nullptr);
	return Text;
}
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
	static const bool bStarted = (StandIn::StartObjectSystem(), true);
	(void)bStarted;
	const FString Text(UTF8_TO_TCHAR(std::string(reinterpret_cast<const char*>(Data), Size).c_str()));
	FCoreTestValues Values;
	if (!Read(Text, Values))
	{
		return 0;
	}
	FCoreTestValues Again;
	const FString Written = Write(Values);
	if (!Read(Written, Again) || !Write(Again).Equals(Written))
	{
		std::abort();
	}
	return 0;
}
