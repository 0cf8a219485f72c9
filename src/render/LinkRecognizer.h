#pragma once

#include <QList>
#include <QString>
#include <QUrl>

#include <optional>

// What users see as links in chat text: addresses with a scheme ("https://…",
// "tg://…"), "www." addresses, bare domains with a real top-level domain
// ("example.com/page"), and e-mail addresses. The smiley conversion leaves links
// alone; the conversation view makes them clickable and picks a preview address.
struct TextLink {
    enum class Kind { Web, Email };

    // In UTF-16 code units, the unit of QString and of Qt's regular expressions.
    qsizetype start = 0;
    qsizetype length = 0;
    Kind kind = Kind::Web;
    // The address to open: "http://" is put before addresses written without a
    // scheme, "mailto:" before e-mail addresses.
    QUrl url;

    friend bool operator==(const TextLink &, const TextLink &) = default;
};

// Every link in the text, in text order, none overlapping. Trailing sentence
// punctuation and closing brackets that do not belong to the address are left out.
QList<TextLink> findLinks(const QString &text);

// The first http or https address in the text: the one a preview card describes.
std::optional<QUrl> firstPreviewableLink(const QString &text);

// Whether the name (without a dot, any case) is a top-level domain that a bare
// domain may end with.
bool isKnownTopLevelDomain(const QString &name);
