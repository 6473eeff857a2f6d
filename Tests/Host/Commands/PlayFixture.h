// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Tests/Host/HostRun.h"
#include "Tests/Host/PictureComparison.h"

#include <gtest/gtest.h>

#include <string>

/** Console commands of the real program on a copy of the demo project. */
class FPlayFixture : public testing::Test
{
protected:
	/** Runs commands that must succeed. */
	void Do(const std::string& Commands) const
	{
		const FHostRun::FResult Result = Host.Execute(Commands);
		ASSERT_EQ(Result.Code, 0) << Result.Output;
	}

	/** Runs commands and tells whether a line of the output reads so. */
	testing::AssertionResult Says(const std::string& Commands, int Code, const std::string& Line) const
	{
		const FHostRun::FResult Result = Host.Execute(Commands);
		if (Result.Code == Code && ("\n" + Result.Output).find("\n" + Line + "\n") != std::string::npos)
		{
			return testing::AssertionSuccess();
		}
		return testing::AssertionFailure() << "code " << Result.Code << '\n' << Result.Output;
	}

	/** Compares two pictures of the run byte by byte. */
	testing::AssertionResult AreSame(const std::string& One, const std::string& Other) const
	{
		return IsExactly(Host.ReadPicture(One), Host.ReadPicture(Other));
	}

	FHostRun Host;
};
