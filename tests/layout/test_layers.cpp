// SPDX-License-Identifier: AGPL-3.0-or-later
// The folders of src/ depend one way: only app/ knows everything, and no other folder includes
// a header of a folder that, directly or through others, includes it back.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Graph = std::map<std::string, std::set<std::string>>;

// Folder (relative to src/, "sky/pages") to the folders its files include.
Graph includeGraph()
{
    const fs::path src = fs::path(ORBANTA_SOURCE_DIR) / "src";
    const std::regex include(R"re(^\s*#\s*include\s*"([^"]+)/[^/"]+\.h")re");
    Graph g;
    for (const auto &entry : fs::recursive_directory_iterator(src)) {
        const auto ext = entry.path().extension();
        if (!entry.is_regular_file() || (ext != ".cpp" && ext != ".h"))
            continue;
        const std::string from = fs::relative(entry.path().parent_path(), src).generic_string();
        g[from];
        std::ifstream in(entry.path());
        std::string line;
        std::smatch m;
        while (std::getline(in, line))
            if (std::regex_search(line, m, include) && m[1] != from)
                g[from].insert(m[1]);
    }
    return g;
}

// Every folder each folder reaches through includes.
Graph reachable(const Graph &g)
{
    Graph reach;
    for (const auto &[from, _] : g) {
        std::vector<std::string> todo{from};
        while (!todo.empty()) {
            const std::string at = todo.back();
            todo.pop_back();
            const auto it = g.find(at);
            if (it == g.end())
                continue;
            for (const std::string &to : it->second)
                if (reach[from].insert(to).second)
                    todo.push_back(to);
        }
    }
    return reach;
}

bool isWidgetFolder(const std::string &folder)
{
    return folder.ends_with("/ui") || folder.ends_with("/pages") || folder == "app";
}

} // namespace

TEST(Layers, OnlyTheCompositionRootKnowsEveryone)
{
    const Graph g = includeGraph();
    ASSERT_TRUE(g.count("app") && g.count("output/ui") && g.count("sky")) << "the source tree wasn't found";
    for (const auto &[from, to] : g) {
        if (from != "app") {
            EXPECT_FALSE(to.count("app")) << from << " includes app/";
        }
        // The topic output draws any page through the registry, never by including it.
        if (from.starts_with("output")) {
            for (const std::string &t : to)
                EXPECT_TRUE(!isWidgetFolder(t) || t == "output/ui" || t == "chartdraw/ui") << from << " includes " << t;
        }
        // The chart is the floor that every subsystem stands on.
        if (from == "sky") {
            EXPECT_TRUE(to.empty()) << "sky includes " << *to.begin();
        }
        // The computation never includes a form.
        if (!isWidgetFolder(from)) {
            for (const std::string &t : to)
                EXPECT_FALSE(isWidgetFolder(t)) << from << " includes " << t;
        }
    }
}

TEST(Layers, NoFolderIncludesOneThatIncludesItBack)
{
    const Graph reach = reachable(includeGraph());
    for (const auto &[a, fromA] : reach) {
        if (a == "app" || !fromA.count(a))
            continue;
        for (const std::string &b : fromA) {
            if (b == a || b == "app" || !reach.count(b) || !reach.at(b).count(a))
                continue;
            ADD_FAILURE() << a << " and " << b << " include each other";
        }
    }
}
