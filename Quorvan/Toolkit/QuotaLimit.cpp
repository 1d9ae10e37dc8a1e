// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/QuotaLimit.h"

#include "Common/Fatal.h"
#include "Quorvan/Modal/Utils.h"
#include "Quorvan/Toolkit/AlertSheet.h"
#include "Quorvan/Toolkit/Localized.h"

#include <QComboBox>
#include <QLocale>

#include <array>
#include <cmath>

namespace quorvan {
namespace {

constexpr std::array<const char*, 5> unitNames = {"KB", "MB", "GB", "TB", "PB"};
constexpr std::size_t firstEnteredUnit = 1; // MB
constexpr long double step = 1024;

/// How many bytes the unit at a position of the pop-up has.
std::int64_t bytesOf(int unit) {
    const bool exists = unit >= 0 && firstEnteredUnit + static_cast<std::size_t>(unit) < unitNames.size();
    return std::int64_t{1} << (20 + 10 * (exists ? unit : quotaUnitGB));
}

QString withoutTrailingZeros(long long hundredths) {
    const QString point = QLocale().decimalPoint();
    QString number = QString::number(hundredths / 100);
    if (const auto decimals = static_cast<int>(hundredths % 100); decimals % 10 != 0)
        number += point + QStringLiteral("%1").arg(decimals, 2, 10, QLatin1Char('0'));
    else if (decimals != 0)
        number += point + QString::number(decimals / 10);
    return number;
}

} // namespace

QString byteCount(std::int64_t bytes) {
    const QString sign = bytes < 0 ? QStringLiteral("-") : QString();
    long double amount = std::abs(static_cast<long double>(bytes));
    if (amount > 0 && amount < step)
        return sign + QString::number(static_cast<int>(amount)) + QLatin1Char(' ') + L("B");
    std::size_t unit = 0;
    amount /= step;
    // 1023.999 MB round to 1 GB, not to 1024 MB.
    while (std::llround(amount * 100) >= step * 100 && unit + 1 < unitNames.size()) {
        amount /= step;
        ++unit;
    }
    return sign + withoutTrailingZeros(std::llround(amount * 100)) + QLatin1Char(' ') + L(unitNames[unit]);
}

void fillQuotaUnits(QComboBox& popUp) {
    for (std::size_t unit = firstEnteredUnit; unit < unitNames.size(); ++unit)
        popUp.addItem(L(unitNames[unit]));
    popUp.setPlaceholderText(popUp.itemText(quotaUnitGB));
}

std::optional<EnteredLimit> enteredQuotaLimit(std::int64_t bytes) {
    for (auto unit = static_cast<int>(unitNames.size() - firstEnteredUnit) - 1; unit >= 0; --unit)
        if (bytes > 0 && bytes % bytesOf(unit) == 0)
            return EnteredLimit{bytes / bytesOf(unit), unit};
    return std::nullopt;
}

std::optional<std::int64_t> quotaLimitInBytes(const QString& text, int unit) {
    const auto number = decimalNumber(text.toStdString());
    if (!number)
        return std::nullopt;
    std::int64_t bytes = 0;
    require(!__builtin_mul_overflow(*number, bytesOf(unit), &bytes), "The limit %d is too large for its unit",
            *number);
    return bytes;
}

void presentInvalidQuotaLimit(QWidget& view) {
    presentAlertSheet(view, L("Invalid_Quota_Limit"));
}

} // namespace quorvan
