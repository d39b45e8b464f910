#include "output/FilePlaces.h"

namespace satwecvt {

bool CFilePlaces::LeadsTo(const char* path, const COutputPlace& place, CFileSystem& files)
{
    const auto folderOf = [](const COutputPlace& each) { return each.folder.empty() ? "." : each.folder.c_str(); };
    const std::optional<COutputPlace> other = PlaceOf(path);
    return other && AreOneName(other->name, place.name) && files.IsSameFile(folderOf(*other), folderOf(place));
}

std::string CFilePlaces::KeyOf(const std::string& path)
{
    const std::optional<COutputPlace> place = PlaceOf(path.c_str());
    return place ? FolderKey(place->folder) + "/" + NameKey(place->name) : path;
}

CFilePlaces& CFilePlaces::System()
{
    static CFilePlaces system;
    return system;
}

}  // namespace satwecvt
