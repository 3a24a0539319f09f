// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/ui/PageCache.h"

#include "output/ui/TopicPage.h"

#include <QStackedWidget>

TopicPage *PageCache::load(const QString &name)
{
    if (TopicPage *page = m_pages.value(name))
        return page;
    TopicPage *page = CreateTopicPage(name);
    if (!page)
        return nullptr;
    m_pages.insert(name, page);
    if (m_host)
        m_host->addWidget(page);
    page->Load();
    return page;
}

void PageCache::UnloadPages()
{
    for (TopicPage *page : std::as_const(m_pages)) {
        if (m_host)
            m_host->removeWidget(page);
        delete page;
    }
    m_pages.clear();
}
