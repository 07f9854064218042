#pragma once

#include <QString>
#include <vector>

namespace velmora {

// How the plain text of an entry falls into parts on its card. Only blanks are left out: everything
// that the text says stands in the parts.
struct CardPart {
    QString label;  // "H:", "Spouse:" and the like, shown quieter; mostly empty
    QString value;

    bool operator==(const CardPart&) const = default;
};

struct CardLine {
    bool heading = false;      // the entry's name
    bool spaceBefore = false;  // one line of space stands before it
    std::vector<CardPart> parts;

    bool operator==(const CardLine&) const = default;
};

// The first line up to its first run of four blanks is the heading, and what follows has a line of
// its own. In the other lines a run of four or more blanks parts two parts. Lines end with CR LF,
// CR or LF.
[[nodiscard]] std::vector<CardLine> partsOfCard(QString text);

}  // namespace velmora
