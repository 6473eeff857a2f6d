// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <string>

/** Notes what happens, in order, as words with single blanks between them. */
class FEventLog
{
public:
	/** Notes one more word. */
	void Add(const std::string& Word)
	{
		if (!Text.empty())
		{
			Text += ' ';
		}
		Text += Word;
	}

	/** Forgets everything noted. */
	void Clear() { Text.clear(); }

	/** Returns all words. */
	const std::string& Get() const { return Text; }

	/** Returns how often a word was noted. */
	int Count(const std::string& Word) const
	{
		int Found = 0;
		const std::string Padded = " " + Text + " ";
		for (size_t At = Padded.find(" " + Word + " "); At != std::string::npos; At = Padded.find(" " + Word + " ", At + 1))
		{
			++Found;
		}
		return Found;
	}

private:
	std::string Text;
};
