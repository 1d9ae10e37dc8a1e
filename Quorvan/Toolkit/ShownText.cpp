// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/ShownText.h"

#include "Common/VisibleText.h"

#include <QStringView>

namespace quorvan {
namespace {

constexpr qsizetype mostCharacters = 1000;
constexpr int mostAccents = 3;
constexpr QChar omission = u'\u2026';
constexpr QChar surplus = u'\uFFFD'; ///< stands for the accents that are left out

bool isAccent(QChar character) {
    return character.isMark();
}

QString withoutPiles(const QString& text) {
    QString shown;
    shown.reserve(text.size());
    int accents = 0;
    for (const QChar character : text) {
        accents = isAccent(character) ? accents + 1 : 0;
        if (accents <= mostAccents)
            shown += character;
        else if (accents == mostAccents + 1)
            shown += surplus;
    }
    return shown;
}

} // namespace

QString shownText(const std::string& text) {
    constexpr std::size_t most = 4 * static_cast<std::size_t>(mostCharacters) + 4; // bytes of UTF-8
    if (text.size() <= most)
        return shownText(QString::fromStdString(text));
    std::size_t end = most;
    while ((static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80) // not within a character
        --end;
    return shownText(QString::fromUtf8(text.data(), static_cast<qsizetype>(end)));
}

QString shownText(const QString& text) {
    QString shown = text;
    if (shown.size() > mostCharacters) {
        shown.truncate(shown[mostCharacters - 1].isHighSurrogate() ? mostCharacters - 1 : mostCharacters);
        shown += omission;
    }
    if (const std::string bytes = shown.toStdString(); hasInvisibleControls(bytes))
        shown = QString::fromStdString(withVisibleControls(bytes));
    return withoutPiles(shown);
}

} // namespace quorvan
