#pragma once

#include <QString>

namespace blunko {

/// The legal notice of the about box, two lines.
inline const QString LegalNotice[] = {
    QStringLiteral("Copyright © Tollmoor Games. All rights reserved."),
    QStringLiteral("Played for points alone, and without any warranty: the dice owe nobody anything."),
};

/// The joke behind the die of the about box, one message box a line; the last one is the punch line.
inline const QString Joke[] = {
    QStringLiteral("A die walks into a bar and orders five drinks, one after the other."),
    QStringLiteral(
        "\"Rough turn?\" asks the barman. \"Not at all,\" says the die. \"I have five hundred points so far.\""),
    QStringLiteral(
        "\"Then pass, go home and bank them,\" says the barman. \"I shall,\" says the die. \"Just one more.\""),
    QStringLiteral("The barman sighs, takes away all five glasses and hands them to the next guest.\n\"Blunko!\""),
};

/// The credits, up to the host of the web site: blocks of a heading and the people under it.
inline const QString Credits = QStringLiteral(
    "Game Design:\nCorin Ashgrove\n\n"
    "Programming:\nMarit Sandvold\nJory Pellen\nOttoline Wake\n\n"
    "Dice Design:\nBenno Farthing\n\n"
    "Copy Edit:\nHester Quillam\nPiers Lindenow\n\n"
    "Q&A:\nAlba Thornecroft\nDesmond Okelo\nFenna Zijlmaker\nGideon Marsh-Tully\nIlse Brandvik\n"
    "Kenji Morisawa-Bell\nLotte Abendrot\nMungo Teasdale\nNadia Ferrowe\nOrla Kinsellagh\n"
    "Rufus Tanglewood\nSunniva Hale\nTobias Winterbourn\nYara Castelmon\n\n"
    "Visit Tollmoor Games\non the web at\n");

}  // namespace blunko
