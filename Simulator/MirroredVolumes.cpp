// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/MirroredVolumes.h"

#include <fstream>
#include <utility>

#include <cstdlib>

namespace quorvan::simulator {

namespace {

namespace fs = std::filesystem;

/// The model does not tell files from folders; what has an ending and nothing in it is a file.
bool looksLikeFile(const Node& node) {
    return node.children.empty() && node.parent != nullptr && node.name.find('.') != std::string::npos;
}

void mirror(const Node& node, const fs::path& place) {
    std::error_code error;
    if (looksLikeFile(node)) {
        const std::ofstream empty(place);
        return;
    }
    fs::create_directory(place, error);
    for (const auto& child : node.children)
        mirror(*child.second, place / child.second->name);
}

fs::path newFolder() {
    std::string name = (fs::temp_directory_path() / "quorvan-volumes-XXXXXX").native();
    return mkdtemp(name.data()) != nullptr ? fs::path(name) : fs::path();
}

} // namespace

MirroredVolumes::MirroredVolumes(std::shared_ptr<KelpServer> server)
    : server_(std::move(server)) {}

MirroredVolumes::~MirroredVolumes() {
    std::error_code error;
    if (!folder_.empty())
        fs::remove_all(folder_, error);
}

std::optional<fs::path> MirroredVolumes::folderOf(const std::string& volume) {
    const Node* root = std::as_const(*server_).volumes().find(volume + ":\\");
    if (root == nullptr)
        return std::nullopt;
    if (folder_.empty())
        folder_ = newFolder();
    if (folder_.empty())
        return std::nullopt;
    if (mirrored_.insert(volume).second)
        mirror(*root, folder_ / volume);
    return folder_ / volume;
}

} // namespace quorvan::simulator
