#include "check/report/RulesDocument.h"

#include "check/Rule.h"

namespace check {

namespace {

const char* const BEGINNING = R"(# Rules of `zorvel check`

`zorvel check` reads a repository as the plug-in does and names everything that will not show, cannot be chosen or is not built. Each
finding has one of the codes below. A code never changes its meaning; one that is no longer used is not given to another rule.

| severity | means |
|---|---|
| error | a character or an element cannot be seen or built |
| warning | the artist will miss something |
| hint | worth knowing |

What stands in `{braces}` is filled in by each finding.

## To silence a rule

For one run: `zorvel check DIR --ignore ZV122`, or `--only ZV312` for nothing but that rule. For good, write a file `.zorvel-check.json`
into the repository's folder:

```json
{ "ignore": ["ZV122", "ZV321"], "severity": { "ZV113": "hint" } }
```

`severity` makes a rule count more or less without silencing it. Letter case does not matter in codes. What else the file may say stands
in [Continuous integration](continuous-integration.md).
)";

struct Chapter {
  char hundred;
  const char* title;
  const char* introduction;
};

const Chapter CHAPTERS[] = {
    {'1', "Reading the description",
     "What the reader of `zorvel.xml` refuses, skips or reads otherwise than it was meant. What is refused or skipped "
     "is "
     "gone with all that it holds. The names that are read stand in [The repository](repository-format.md)."},
    {'2', "Ids and names",
     "Ids tie the parts of a description together and are parts of file names. Where one is missing, twice there or "
     "impossible as a file name, the window shows one thing and chooses another, or a file is never found."},
    {'3', "Files and folders",
     "What the plug-in looks for on disk: folders, pictures and meshes. A missing picture mostly takes its element off "
     "the page; a missing mesh leaves a gap in what is built."},
    {'4', "What is offered",
     "Everything is read and there, and still the window does not offer it, or chooses something else than the "
     "description says."},
    {'5', "What is built",
     "What can be chosen, and is missing, in the wrong place or without its material in the scene."},
};

/// "<" would begin a tag of HTML.
std::string escaped(const char* text) {
  std::string result;
  for (; *text != '\0'; ++text) {
    if (*text == '<') {
      result += "&lt;";
    } else {
      result += *text;
    }
  }
  return result;
}

std::string sectionOf(const Rule& rule) {
  return std::string("\n### ") + rule.code + ' ' + rule.name + "\n\n**" + nameOf(rule.severity) +
         "**: " + escaped(rule.sentence) + "\n\n" + escaped(rule.remedy) + '\n';
}

std::string partOf(const Chapter& group) {
  std::string text = std::string("\n## ") + group.hundred + "xx: " + group.title + "\n\n" + group.introduction + '\n';
  for (const Rule& rule : allRules()) {
    if (rule.code[2] == group.hundred) text += sectionOf(rule);
  }
  return text;
}

}  // namespace

std::string rulesDocument() {
  std::string text = BEGINNING;
  for (const Chapter& group : CHAPTERS) text += partOf(group);
  return text;
}

}  // namespace check
