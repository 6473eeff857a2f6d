// Copyright The Tintmill authors. All rights reserved.
#pragma once

#include <ostream>
#include <set>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

namespace HeaderTool
{

/** One complaint about one place of a header. */
struct FDiagnostic
{
	std::string File;
	int Line = 1;
	std::string Text;
};

/** Thrown where parsing cannot go on; whoever can recover reports it and continues behind the place. */
class FSyntaxError : public std::runtime_error
{
public:
	/** Makes an error for a line, counted from 1. */
	FSyntaxError(int InLine, const std::string& InText);

	/** The line, counted from 1. */
	int GetLine() const { return Line; }

private:
	int Line;
};

/** Collects the complaints of a whole run, in the order in which they are found. */
class FDiagnostics
{
public:
	/** Adds a complaint; the same complaint about the same place counts once. */
	void Error(const std::string& File, int Line, const std::string& Text);

	/** True once there is a complaint. */
	bool HasErrors() const { return !Errors.empty(); }

	/** All complaints so far. */
	const std::vector<FDiagnostic>& Get() const { return Errors; }

	/** Writes one line "<path>(<line>): error: <text>" a complaint. */
	void Print(std::ostream& Out) const;

private:
	std::vector<FDiagnostic> Errors;
	std::set<std::tuple<std::string, int, std::string>> Known;
};

}
