#include "page/Html.h"

#include <algorithm>
#include <cctype>

#include <fmt/format.h>

namespace render {
namespace {

constexpr std::string_view style = R"(
:root { color-scheme: light dark; --ink: #222; --soft: #5a5f66; --paper: #fff; --line: #d8dade; --link: #0b5cad; }
@media (prefers-color-scheme: dark) {
  :root { --ink: #e6e6e6; --soft: #a7adb5; --paper: #16181b; --line: #3a3e44; --link: #7db8f5; }
}
body { margin: 0 auto; max-width: 72rem; padding: 1rem 1.5rem 3rem; color: var(--ink); background: var(--paper);
  font: 1rem/1.5 system-ui, 'Noto Sans', 'DejaVu Sans', sans-serif; }
a { color: var(--link); }
h1 { font-size: 1.4rem; margin: .5rem 0 1rem; }
h2 { font-size: 1.1rem; margin: 1.5rem 0 .5rem; }
h3 { font-size: 1rem; margin: 1rem 0 .25rem; }
figure { margin: 0; }
figcaption, .soft { color: var(--soft); }
.plot { position: relative; overflow-x: auto; padding: .3rem; margin: -.3rem; }
#chart { width: fit-content; max-width: 100%; }
#chart svg { max-width: 100%; height: auto; }
.patterns { position: absolute; }
.ring { position: absolute; width: 1.4rem; height: 1.4rem; margin: -.8rem 0 0 -.8rem; border: .15rem solid var(--ink);
  border-radius: 50%; outline: .1rem solid var(--paper); pointer-events: none; }
#live { margin: .25rem 0; font-weight: 600; }
#live:empty { margin: 0; }
:focus-visible { outline: .15rem solid var(--link); outline-offset: .15rem; }
[hidden] { display: none !important; }
.later { visibility: hidden; animation: show 0s 1.5s forwards; }
@keyframes show { to { visibility: visible; } }
#still { max-width: 100%; animation: wait 1.5s; }
@keyframes wait { from, to { display: none; } }
.bad { border-left: .3rem solid #d55e00; padding: .3rem 1rem; }
fieldset { display: flex; flex-wrap: wrap; gap: .25rem 1.25rem; margin: .75rem 0; border: 1px solid var(--line); border-radius: .3rem; }
#actions { display: flex; flex-wrap: wrap; gap: .5rem; }
button, select, input[type=search] { font: inherit; padding: .25rem .8rem; margin: 0; color: inherit;
  background: none; border: 1px solid var(--soft); border-radius: .3rem; }
button { cursor: pointer; }
button:hover { border-color: var(--ink); }
button:disabled { opacity: .5; cursor: default; }
.table { overflow-x: auto; }
table { border-collapse: collapse; font-variant-numeric: tabular-nums; }
th, td { border-bottom: 1px solid var(--line); padding: .2rem .9rem .2rem 0; text-align: left; }
td.number, th.number { text-align: right; }
.search { display: flex; flex-wrap: wrap; gap: .5rem 1rem; align-items: center; }
.search input { flex: 1 1 15rem; }
.cards { display: grid; grid-template-columns: repeat(auto-fill, minmax(min(20rem, 100%), 1fr)); gap: 1.5rem; align-items: start; padding: 0; list-style: none; }
.cards li { border: 1px solid var(--line); border-radius: .4rem; overflow: hidden; }
.cards img { display: block; box-sizing: border-box; width: calc(100% - 1.5rem); margin: .75rem .75rem 0; padding: .25rem;
  aspect-ratio: 4 / 3; object-fit: contain; background: #fff; border-radius: .25rem; }
@media (prefers-color-scheme: dark) { .cards img { filter: brightness(.85); } }
.cards p, .cards h2, .cards details { margin: .6rem 1rem; overflow-wrap: anywhere; }
.cards h2 + p { margin-top: -.3rem; }
pre { overflow: auto; max-height: 20rem; font-size: .85rem; line-height: 1.35; }
@media print {
  :root { color-scheme: light; --ink: #000; --soft: #333; --paper: #fff; --line: #999; --link: #000; }
  body { max-width: none; padding: 0; }
  nav, #actions, #filters, #keys, #live, .ring, .search, button { display: none !important; }
  figure, .cards li, tr { break-inside: avoid; }
}
)";

std::string replaced(std::string_view text, std::string_view (*replacement)(char)) {
  std::string result;
  result.reserve(text.size());
  for (const char c : text) {
    const std::string_view with = replacement(c);
    if (with.empty())
      result += c;
    else
      result += with;
  }
  return result;
}

void replaceAll(std::string& text, std::string_view from, std::string_view to) {
  for (std::size_t at = text.find(from); at != text.npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
}

/// What is no language tag would be an error to whatever reads it.
std::string_view languageTag(std::string_view language) {
  const auto isPlain = [](unsigned char c) { return c == '-' || (c < 0x80 && std::isalnum(c)); };
  return !language.empty() && std::ranges::all_of(language, isPlain) ? language : "en";
}

} // namespace

std::string escapeHtml(std::string_view utf8) {
  return replaced(utf8, [](char c) -> std::string_view {
    switch (c) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    case '\'':
      return "&#39;";
    default:
      return {};
    }
  });
}

std::string escapeScript(std::string_view json) {
  std::string result = replaced(json, [](char c) -> std::string_view {
    switch (c) {
    case '&':
      return "\\u0026";
    case '<':
      return "\\u003c";
    case '>':
      return "\\u003e";
    default:
      return {};
    }
  });
  replaceAll(result, "\u2028", "\\u2028");
  replaceAll(result, "\u2029", "\\u2029");
  return result;
}

std::string escapeUrl(std::string_view path) {
  std::string url;
  for (const char c : path) {
    const auto byte = static_cast<unsigned char>(c);
    const bool plain = (byte < 0x80 && std::isalnum(byte)) || c == '-' || c == '_' || c == '.' ||
                       c == '~' || c == '/';
    if (plain)
      url += c;
    else
      url += fmt::format("%{:02X}", byte);
  }
  return url;
}

std::string pageHead(std::string_view language, std::string_view title, std::string_view policy,
                     std::string_view more) {
  return fmt::format(R"(<!doctype html>
<html lang="{}">
<head>
<meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="{}">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{}</title>
<style>{}</style>
{}</head>
)",
                     languageTag(language), policy, escapeHtml(title), style, more);
}

} // namespace render
