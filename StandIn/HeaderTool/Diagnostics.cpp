// Copyright The Tintmill authors. All rights reserved.
#include "Diagnostics.h"

namespace HeaderTool
{

FSyntaxError::FSyntaxError(int InLine, const std::string& InText) : std::runtime_error(InText), Line(InLine) {}

void FDiagnostics::Error(const std::string& File, int Line, const std::string& Text)
{
	for (const FDiagnostic& Known : Errors)
	{
		if (Known.Line == Line && Known.File == File && Known.Text == Text)
		{
			return;
		}
	}
	Errors.push_back({File, Line, Text});
}

void FDiagnostics::Print(std::ostream& Out) const
{
	for (const FDiagnostic& Known : Errors)
	{
		Out << Known.File << '(' << Known.Line << "): error: " << Known.Text << '\n';
	}
}

}
