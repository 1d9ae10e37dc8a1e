// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTranslator>

namespace quorvan::demo {

/// Texts of a language that nobody speaks: the English ones a third longer, in letters that run from right
/// to left. A text that stays readable is written into the program, one that is cut has too little room.
class PseudoTexts : public QTranslator {
public:
    static constexpr auto language = "pseudo"; ///< for --language

    PseudoTexts();
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int count) const override;

private:
    QTranslator english_;
};

} // namespace quorvan::demo
