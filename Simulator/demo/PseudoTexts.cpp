// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/demo/PseudoTexts.h"

#include <QRegularExpression>

namespace quorvan::demo {
namespace {

constexpr char16_t firstLetter = 0x05D0; ///< of the Hebrew alphabet
constexpr int letters = 27;

QString foreign(QString text) {
    for (QChar& character : text)
        if (character.isLetter())
            character = QChar(static_cast<char16_t>(firstLetter + character.unicode() % letters));
    return text;
}

} // namespace

PseudoTexts::PseudoTexts() {
    [[maybe_unused]] const bool loaded = english_.load("Localizable_en", ":/quorvan/i18n");
}

QString PseudoTexts::translate(const char* context, const char* sourceText, const char* disambiguation,
                               int count) const {
    const QString english = english_.translate(context, sourceText, disambiguation, count);
    static const QRegularExpression kept("%(?:n|L?\\d+)|<[^>]*>|&.|\\.plist|\\.conf"); // placeholders, markup
    QString text;
    qsizetype from = 0;
    for (auto found = kept.globalMatch(english); found.hasNext();) {
        const auto match = found.next();
        text += foreign(english.mid(from, match.capturedStart() - from)) + match.captured();
        from = match.capturedEnd();
    }
    return text + foreign(english.mid(from) + QString(english.size() / 3, 'x'));
}

} // namespace quorvan::demo
