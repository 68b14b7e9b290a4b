#include "JsonRead.h"

#include <cmath>

namespace KestoDraw::JsonRead {

namespace {

QJsonValue Field(const QJsonObject& object, const QString& key)
{
    const QJsonValue value = object.value(key);
    if (value.isUndefined())
        throw FormatError(FormatError::tr("\"%1\" is missing").arg(key));
    return value;
}

} // namespace

QJsonObject Object(const QJsonValue& value, const QString& what)
{
    if (!value.isObject())
        throw FormatError(FormatError::tr("%1 should be an object").arg(what));
    return value.toObject();
}

QJsonArray Array(const QJsonObject& object, const QString& key)
{
    const QJsonValue value = Field(object, key);
    if (!value.isArray())
        throw FormatError(FormatError::tr("\"%1\" should be a list").arg(key));
    return value.toArray();
}

QJsonObject Object(const QJsonObject& object, const QString& key)
{
    return Object(Field(object, key), QStringLiteral("\"%1\"").arg(key));
}

double Number(const QJsonValue& value, const QString& what, double min, double max)
{
    if (!value.isDouble() || !std::isfinite(value.toDouble()) || value.toDouble() < min || value.toDouble() > max)
        throw FormatError(
            FormatError::tr("%1 should be a number from %2 to %3").arg(what, NumberText(min), NumberText(max)));
    return value.toDouble();
}

double Number(const QJsonObject& object, const QString& key, double min, double max)
{
    return Number(Field(object, key), QStringLiteral("\"%1\"").arg(key), min, max);
}

int Int(const QJsonObject& object, const QString& key, int min, int max)
{
    const double value = Number(object, key, min, max);
    if (value != std::floor(value))
        throw FormatError(FormatError::tr("\"%1\" should be a whole number").arg(key));
    return static_cast<int>(value);
}

bool Bool(const QJsonObject& object, const QString& key)
{
    const QJsonValue value = Field(object, key);
    if (!value.isBool())
        throw FormatError(FormatError::tr("\"%1\" should be true or false").arg(key));
    return value.toBool();
}

QString String(const QJsonObject& object, const QString& key)
{
    const QJsonValue value = Field(object, key);
    if (!value.isString())
        throw FormatError(FormatError::tr("\"%1\" should be text").arg(key));
    return value.toString();
}

QString NumberText(double value)
{
    if (std::isfinite(value) && value == std::floor(value) && std::abs(value) < 1e15)
        return QString::number(static_cast<qlonglong>(value));
    return QString::number(value, 'g', 12);
}

QString Excerpt(const QString& text)
{
    constexpr qsizetype kShown = 40;
    return text.size() <= kShown ? text : text.left(kShown) + QStringLiteral("…");
}

} // namespace KestoDraw::JsonRead
