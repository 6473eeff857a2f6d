// Copyright The Tintmill authors. All rights reserved.

#include "LookFileCheck.h"
#include "LookGrader.h"

#include <cstdint>
#include <cstdlib>
#include <string>

// Look files: the first byte chooses the format. A table that passes has to pass again as it was handed on, and has to grade.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
	if (Size == 0)
	{
		return 0;
	}
	const std::vector<std::string>& Extensions = LookFile::KnownExtensions();
	const std::string& Extension = Extensions[Data[0] % Extensions.size()];
	LookFile::FCheckedFile File;
	LookFile::FProblem Problem;
	if (!LookFile::CheckText(std::string(reinterpret_cast<const char*>(Data) + 1, Size - 1), Extension, File, Problem))
	{
		if (Problem.Reason.empty() || Problem.Line < 0)
		{
			std::abort();
		}
		return 0;
	}
	// The library that reads XML has its own say, so that only the tables have to be as good as new.
	const bool bXml = Extension == "clf" || Extension == "ctf";
	LookFile::FCheckedFile Again;
	if (!bXml && (!LookFile::CheckText(File.Text, Extension, Again, Problem) || (Extension == "cube" && Again.Text != File.Text)))
	{
		std::abort();
	}
	std::string Reason;
	if (const auto Grader = LookGrading::MakeLookGrader(File, Reason))
	{
		std::uint8_t Pixels[16] = {0, 0, 0, 0, 255, 255, 255, 255, 1, 128, 254, 7, 255, 0, 127, 9};
		Grader->Grade(Pixels, Pixels, 4, LookGrading::EByteOrder::RedFirst);
		if (Pixels[3] != 0 || Pixels[7] != 255 || Pixels[11] != 7 || Pixels[15] != 9)
		{
			std::abort();
		}
	}
	return 0;
}
