// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "LookFileCube.h"

#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace LookFile
{
/** Reads one .cube text, line by line. */
class FCubeParser
{
public:
	/** Reads the text into the cube; false with line and reason when it breaks the format. */
	bool Parse(std::string_view Text, FCube& OutCube, FProblem& OutProblem);

private:
	typedef std::vector<std::string_view> FWords;

	bool ParseLine(std::string_view Line);
	bool ParseKeyword(const FWords& Words);
	bool ParseSize(const FWords& Words, std::int64_t Highest, std::int64_t& OutSize);
	bool ParseDomain(const FWords& Words, float* OutValues);
	bool ParseRange(const FWords& Words, float* OutMin, float* OutMax);
	bool ParseRow(const FWords& Words);
	bool BeginRows();
	bool Finish();
	bool CheckDomain();
	bool Has(const char* Keyword) const;
	bool Fail(std::string Reason);

	FCube Cube;
	FProblem Problem;
	std::set<std::string> Seen;
	float DomainMin[3] = {0.0f, 0.0f, 0.0f};
	float DomainMax[3] = {1.0f, 1.0f, 1.0f};
	std::int64_t LineNumber = 0;
	std::int64_t Rows = 0;
	std::int64_t ExpectedRows = 0;
	bool bInRows = false;
};
}
