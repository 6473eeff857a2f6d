// Copyright The Tintmill authors. All rights reserved.

#include "Logging/LogSuppressionInterface.h"

#include "Containers/UnrealString.h"
#include "CoreGlobals.h"
#include "Misc/CommandLine.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Parse.h"

#include <algorithm>
#include <mutex>
#include <utility>
#include <vector>

/** The suppression interface; categories register from any library's statics, so it lives until the process ends. */
class FLogSuppressionImplementation final : public FLogSuppressionInterface
{
public:
	virtual void AssociateSuppress(FLogCategoryBase* Destination) override
	{
		const std::lock_guard<std::mutex> Lock(Mutex);
		Categories.push_back(Destination);
		for (const FSetting& Setting : Settings)
		{
			Apply(Setting, *Destination);
		}
	}

	virtual void DisassociateSuppress(FLogCategoryBase* Destination) override
	{
		const std::lock_guard<std::mutex> Lock(Mutex);
		Categories.erase(std::remove(Categories.begin(), Categories.end(), Destination), Categories.end());
	}

	virtual void ProcessConfigAndCommandLine() override
	{
		TArray<FString> Lines;
		if (GConfig && GConfig->GetSection(TEXT("Core.Log"), Lines, GEngineIni))
		{
			for (const FString& Line : Lines)
			{
				ProcessLogCommand(*Line.Replace(TEXT("="), TEXT(" ")));
			}
		}
		FString Commands;
		if (FCommandLine::IsInitialized() && FParse::Value(FCommandLine::Get(), TEXT("LogCmds="), Commands, false))
		{
			TArray<FString> Parts;
			Commands.ParseIntoArray(Parts, TEXT(","), true);
			for (const FString& Part : Parts)
			{
				ProcessLogCommand(*Part);
			}
		}
	}

	virtual bool ProcessLogCommand(const TCHAR* Command) override
	{
		const TCHAR* At = Command;
		FString Name;
		FString Word;
		FParse::Command(&At, TEXT("log"));
		if (!FParse::AlnumToken(At, Name) || !FParse::AlnumToken(At, Word))
		{
			return false;
		}
		FSetting Setting;
		Setting.Name = FName(*Name);
		if (Word == TEXT("off") || Word == TEXT("none"))
		{
			Setting.Verbosity = ELogVerbosity::NoLogging;
		}
		else if (Word == TEXT("on") || Word == TEXT("all"))
		{
			Setting.Verbosity = ELogVerbosity::All;
		}
		else if (Word == TEXT("default") || Word == TEXT("reset"))
		{
			Setting.bDefault = true;
		}
		else
		{
			Setting.Verbosity = ParseLogVerbosityFromString(Word);
			if (!(Word == ToString(Setting.Verbosity)))
			{
				return false;
			}
		}
		const std::lock_guard<std::mutex> Lock(Mutex);
		Settings.erase(
			std::remove_if(Settings.begin(), Settings.end(), [&Setting](const FSetting& Other) { return Other.Name == Setting.Name; }),
			Settings.end());
		Settings.push_back(Setting);
		for (FLogCategoryBase* Category : Categories)
		{
			Apply(Setting, *Category);
		}
		return true;
	}

private:
	struct FSetting
	{
		FName Name;
		ELogVerbosity::Type Verbosity = ELogVerbosity::Log;
		bool bDefault = false;
	};

	static void Apply(const FSetting& Setting, FLogCategoryBase& Category)
	{
		if (Setting.Name != Category.GetCategoryName() && Setting.Name != FName(TEXT("Global")))
		{
			return;
		}
		if (Setting.bDefault)
		{
			Category.ResetFromDefault();
		}
		else
		{
			Category.SetVerbosity(Setting.Verbosity);
		}
	}

	std::mutex Mutex;
	std::vector<FLogCategoryBase*> Categories;
	/** Commands in the order they were given, one a category. */
	std::vector<FSetting> Settings;
};

FLogSuppressionInterface& FLogSuppressionInterface::Get()
{
	static FLogSuppressionImplementation* const Instance = new FLogSuppressionImplementation();
	return *Instance;
}
