// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The loaded topic pages of a session, by name: a page loads on first need, fills itself once,
// and stays until all are unloaded.

#include <QHash>
#include <QString>

class QStackedWidget;
class TopicPage;

class PageCache
{
public:
    // host, when given, holds the pages on screen.
    explicit PageCache(QStackedWidget *host = nullptr) : m_host(host) {}
    ~PageCache() { UnloadPages(); }
    PageCache(const PageCache &) = delete;
    PageCache &operator=(const PageCache &) = delete;

    // The page, loaded and filled if it wasn't; nullptr for a page not in this program.
    TopicPage *load(const QString &name);
    TopicPage *loaded(const QString &name) const { return m_pages.value(name); }
    int count() const { return static_cast<int>(m_pages.size()); }
    void UnloadPages();

private:
    QStackedWidget *m_host;
    QHash<QString, TopicPage *> m_pages;
};
