// SPDX-License-Identifier: AGPL-3.0-or-later
// The pages built into the program, by name.
#include "output/ui/TopicPage.h"

#include "dasha/pages/frmVimsot.h"
#include "sky/pages/frmPage1.h"
#include "sky/pages/frmPage2.h"
#include "sky/pages/frmSodash.h"
#include "strength/pages/frmAshtak.h"
#include "strength/pages/frmBhav.h"
#include "strength/pages/frmShadbala.h"
#include "text/pages/frmForText.h"
#include "yoga/pages/frmPrediYogas.h"

namespace {
struct PageMaker
{
    const char *name;
    TopicPage *(*make)(QWidget *parent);
};
template <typename Page> TopicPage *make(QWidget *parent) { return new Page(parent); }
template <int Part> TopicPage *makeBhinna(QWidget *parent) { return new frmBhinnaAshtak(Part, parent); }

inline constexpr PageMaker kPages[] = {
    {"frmPage1", make<frmPage1>},          {"frmPage2", make<frmPage2>},
    {"frmSodash", make<frmSodash>},        {"frmBhav", make<frmBhav>},
    {"frmBhinnaAshtak", makeBhinna<1>},    {"frmBhinnaAshtak2", makeBhinna<2>},
    {"frmAshtak", make<frmAshtak>},        {"frmShadbala", make<frmShadbala>},
    {"frmVimsot", make<frmVimsot>},        {"frmPratyan", make<frmPratyan>},
    {"frmPrediYogas", make<frmPrediYogas>}, {"frmForText", make<frmForText>},
};
} // namespace

TopicPage *CreateTopicPage(const QString &name, QWidget *parent)
{
    for (const PageMaker &m : kPages)
        if (name == QLatin1String(m.name))
            return m.make(parent);
    return nullptr;
}
