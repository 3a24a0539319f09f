// SPDX-License-Identifier: AGPL-3.0-or-later
// The registry of topic pages by name.
#include "output/TopicList.h"
#include "output/ui/TopicPage.h"

#include <QHash>

namespace {
QHash<QString, TopicPageMaker> &registry()
{
    static QHash<QString, TopicPageMaker> pages;
    return pages;
}
} // namespace

void RegisterTopicPage(const QString &name, TopicPageMaker make)
{
    registry().insert(name, std::move(make));
    DeclarePageBuilt(name);
}

TopicPage *CreateTopicPage(const QString &name, QWidget *parent)
{
    const auto it = registry().constFind(name);
    return it == registry().constEnd() ? nullptr : (*it)(parent);
}
