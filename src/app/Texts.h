#pragma once

#include <QString>
#include <QStringList>

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

/// A block of the credits: a heading and the people under it.
struct CreditsBlock {
  QString Heading;
  QStringList Lines;
};

inline const CreditsBlock Credits[] = {
    {QStringLiteral("Game Design:"), {QStringLiteral("Corin Ashgrove")}},
    {QStringLiteral("Programming:"),
     {QStringLiteral("Marit Sandvold"), QStringLiteral("Jory Pellen"), QStringLiteral("Ottoline Wake")}},
    {QStringLiteral("Dice Design:"), {QStringLiteral("Benno Farthing")}},
    {QStringLiteral("Copy Edit:"), {QStringLiteral("Hester Quillam"), QStringLiteral("Piers Lindenow")}},
    {QStringLiteral("Q&A:"),
     {QStringLiteral("Alba Thornecroft"), QStringLiteral("Desmond Okelo"), QStringLiteral("Fenna Zijlmaker"),
      QStringLiteral("Gideon Marsh-Tully"), QStringLiteral("Ilse Brandvik"), QStringLiteral("Kenji Morisawa-Bell"),
      QStringLiteral("Lotte Abendrot"), QStringLiteral("Mungo Teasdale"), QStringLiteral("Nadia Ferrowe"),
      QStringLiteral("Orla Kinsellagh"), QStringLiteral("Rufus Tanglewood"), QStringLiteral("Sunniva Hale"),
      QStringLiteral("Tobias Winterbourn"), QStringLiteral("Yara Castelmon")}},
};

}  // namespace blunko
