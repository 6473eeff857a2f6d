// Copyright The Tintmill authors. All rights reserved.
#include "Diagnostics.h"

namespace HeaderTool
{

FSyntaxError::FSyntaxError(int InLine, const std::string& InText)
	: std::runtime_error(InText)
	, Line(InLine)
{}

void FDiagnostics::Error(const std::string& File, int Line, const std::string& Text)
{
	if (Known.emplace(File, Line, Text).second)
	{
		Errors.push_back({File, Line, Text});
	}
}

void FDiagnostics::Print(std::ostream& Out) const
{
	for (const FDiagnostic& Complaint : Errors)
	{
		Out << Complaint.File << '(' << Complaint.Line << "): error: " << Complaint.Text << '\n';
	}
}

}
