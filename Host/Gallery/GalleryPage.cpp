// Copyright The Tintmill authors. All rights reserved.

#include "Host/Gallery/GalleryPage.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iterator>

namespace TintmillHost
{
namespace
{
constexpr const char* Head = R"(<!doctype html>
<html lang="en"><meta charset="utf-8"><meta name="viewport" content="width=device-width">
<style>
body { background: #2b2b2b; color: #ddd; font: 15px/1.5 Roboto, "Segoe UI", sans-serif; margin: 2rem auto; max-width: 1320px; padding: 0 1rem }
h1 { font-size: 1.4rem; font-weight: 500 }
main { display: grid; grid-template-columns: repeat(auto-fill, minmax(min(100%, 560px), 1fr)); gap: 1.5rem }
figure { margin: 0; background: #383838; border: 1px solid #1c1c1c; border-radius: 4px; overflow: hidden }
figcaption { padding: .6rem .9rem }
img { display: block; width: 100% }
.split { position: relative }
.split .with { position: absolute; inset: 0; clip-path: inset(0 0 0 var(--at)) }
.split input { position: absolute; inset: 0; width: 100%; height: 100%; margin: 0; opacity: 0; cursor: ew-resize }
.split i { position: absolute; top: 0; bottom: 0; left: var(--at); width: 2px; background: #dea30a; pointer-events: none }
.split b { position: absolute; bottom: .4rem; padding: 0 .4rem; background: #0008; font-weight: 400; font-size: .8rem; pointer-events: none }
pre { background: #1e1e1e; padding: 1rem; overflow: auto; font-size: .8rem; border-radius: 4px }
</style>
)";

/** Text as it must stand in HTML. */
std::string Escaped(const std::string& Text)
{
	std::string Result;
	for (const char Character : Text)
	{
		switch (Character)
		{
		case '&':
			Result += "&amp;";
			break;
		case '<':
			Result += "&lt;";
			break;
		case '>':
			Result += "&gt;";
			break;
		case '"':
			Result += "&quot;";
			break;
		default:
			Result += Character;
			break;
		}
	}
	return Result;
}

/** The file's bytes as a data address; empty when it cannot be read. */
std::string DataAddress(const std::filesystem::path& File)
{
	constexpr const char* Digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
	std::ifstream Stream(File, std::ios::binary);
	const std::string Bytes((std::istreambuf_iterator<char>(Stream)), std::istreambuf_iterator<char>());

	std::string Result = "data:image/png;base64,";
	for (size_t Index = 0; Index < Bytes.size(); Index += 3)
	{
		const size_t Count = std::min<size_t>(3, Bytes.size() - Index);
		unsigned Group = 0;
		for (size_t Offset = 0; Offset < 3; ++Offset)
		{
			Group = Group << 8 | (Offset < Count ? static_cast<unsigned char>(Bytes[Index + Offset]) : 0u);
		}
		for (size_t Digit = 0; Digit < 4; ++Digit)
		{
			Result += Digit <= Count ? Digits[Group >> (18 - 6 * Digit) & 63u] : '=';
		}
	}
	return Result;
}
}

void FGalleryPage::AddPicture(const std::string& Caption, const std::filesystem::path& Picture)
{
	Steps.push_back({Caption, Picture, {}});
}

void FGalleryPage::AddComparison(const std::string& Caption, const std::filesystem::path& Without, const std::filesystem::path& With)
{
	Steps.push_back({Caption, With, Without});
}

std::string FGalleryPage::Write(const std::filesystem::path& File, const std::string& Title, const std::string& Log) const
{
	std::ofstream Page(File, std::ios::binary);
	Page << Head << "<title>" << Escaped(Title) << "</title>\n<h1>" << Escaped(Title) << "</h1>\n<main>\n";
	for (const FStep& Step : Steps)
	{
		Page << "<figure>";
		if (Step.Without.empty())
		{
			Page << "<img alt=\"\" src=\"" << DataAddress(Step.Picture) << "\">";
		}
		else
		{
			Page << "<div class=split style=\"--at:50%\"><img alt=\"\" src=\"" << DataAddress(Step.Without)
				 << "\"><img alt=\"\" class=with src=\"" << DataAddress(Step.Picture)
				 << "\"><i></i><b style=\"left:.4rem\">without</b><b style=\"right:.4rem\">with the look</b>"
				 << "<input type=range aria-label=\"Compare\" min=0 max=100 value=50 "
				 << "oninput=\"this.parentNode.style.setProperty('--at',this.value+'%')\"></div>";
		}
		Page << "<figcaption>" << Escaped(Step.Caption) << "</figcaption></figure>\n";
	}
	Page << "</main>\n<h1>Log</h1>\n<pre>" << Escaped(Log) << "</pre>\n</html>\n";
	Page.flush();
	if (!Page)
	{
		return "Cannot write the page " + File.string() + ": " + std::strerror(errno) + ". Choose another folder with --out.";
	}
	return {};
}
}
