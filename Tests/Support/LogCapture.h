// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreGlobals.h"
#include "Misc/OutputDevice.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Support/Text.h"
#include <string>
#include <vector>

/** Catches what reaches the log while it lives. */
class FLogCapture : public FOutputDevice
{
public:
	struct FLine
	{
		std::string Category;
		ELogVerbosity::Type Verbosity;
		std::string Text;
	};

	FLogCapture() { GLog->AddOutputDevice(this); }
	virtual ~FLogCapture() { GLog->RemoveOutputDevice(this); }

	using FOutputDevice::Serialize;
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
	{
		Lines.push_back(FLine{ToStd(Category), Verbosity, ToStd(V)});
	}

	/** Texts of the lines of a category. */
	std::vector<std::string> TextsOf(const std::string& Category) const
	{
		std::vector<std::string> Texts;
		for (const FLine& Line : Lines)
		{
			if (Line.Category == Category)
			{
				Texts.push_back(Line.Text);
			}
		}
		return Texts;
	}

	std::vector<FLine> Lines;
};
