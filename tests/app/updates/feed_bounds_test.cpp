#include "app/updates/feed_bounds.h"

#include <QString>

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

bool holds(const QString &feed)
{
    return feed_bounds::holds(feed);
}

QString withAttributes(int count)
{
    QString tag = QStringLiteral("<a");
    for (int i = 0; i < count; ++i)
        tag += QStringLiteral(" b%1='<>/'").arg(i);
    return tag + QStringLiteral("/>");
}

QString nested(int depth)
{
    return QStringLiteral("<a>").repeated(depth) + QStringLiteral("</a>").repeated(depth);
}

} // namespace

TEST(FeedBounds, TheAttributesOfOneElementAreCounted)
{
    EXPECT_TRUE(holds(withAttributes(feed_bounds::mostAttributes)));
    EXPECT_FALSE(holds(withAttributes(feed_bounds::mostAttributes + 1)));
    EXPECT_TRUE(holds(withAttributes(feed_bounds::mostAttributes).repeated(100)));
}

TEST(FeedBounds, TheDepthIsCounted)
{
    EXPECT_TRUE(holds(nested(feed_bounds::deepest).repeated(100)));
    EXPECT_FALSE(holds(nested(feed_bounds::deepest + 1)));
    EXPECT_TRUE(holds(QStringLiteral("<a/>").repeated(1000)));
}

TEST(FeedBounds, NamespacesAreCountedInTheWholeFeed)
{
    const auto with = [](int count) { return QStringLiteral("<a xmlns:b='c'/>").repeated(count); };
    EXPECT_TRUE(holds(with(feed_bounds::mostNamespaces)));
    EXPECT_FALSE(holds(with(feed_bounds::mostNamespaces + 1)));
}

TEST(FeedBounds, ATagIsOnlySoLong)
{
    const auto tag = [](qsizetype length) -> QString {
        return QStringLiteral("<a b='") + QString(length, u'c') + QStringLiteral("'/>");
    };
    EXPECT_TRUE(holds(tag(feed_bounds::longestTag - 100)));
    EXPECT_FALSE(holds(tag(feed_bounds::longestTag)));
    EXPECT_FALSE(holds(QStringLiteral("<a ") + QString(feed_bounds::longestTag, u' ')));
}

TEST(FeedBounds, ADocumentTypeIsOutOfThem)
{
    EXPECT_FALSE(holds(QStringLiteral("<?xml version='1.0'?><!DOCTYPE a><a/>")));
    EXPECT_FALSE(holds(QStringLiteral("<a><!ELEMENT b></a>")));
}

TEST(FeedBounds, WhatStandsInCommentsAndTextsIsNoMarkup)
{
    const QString deep = nested(100) + withAttributes(100);
    EXPECT_TRUE(holds(QStringLiteral("<a><!-- %1 --></a>").arg(deep)));
    EXPECT_TRUE(holds(QStringLiteral("<a><![CDATA[%1]]></a>").arg(deep)));
    EXPECT_TRUE(holds(QStringLiteral("<?pi %1?>").arg(deep)));
}

// "<!-->" begins a comment and does not end it.
TEST(FeedBounds, NothingHidesBehindTheEndOfACommentThatIsNone)
{
    const QString hidden = QStringLiteral("<!--><![CDATA[ -->%1]]>");
    EXPECT_FALSE(holds(hidden.arg(withAttributes(100))));
    EXPECT_FALSE(holds(QStringLiteral("<?><![CDATA[ ?>%1]]>").arg(withAttributes(100))));
}

} // namespace corvane::test
