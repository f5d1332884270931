#pragma once

#include <string>
#include <vector>

#include "Documents.h"
#include "Pictures.h"
#include "Status.h"

/// What the verbs of the command do. What they find goes to standard output, as lines
/// or as one JSON value; what keeps them from their work is thrown.
namespace tools {

using Arguments = std::vector<std::string>;

/// Checks chart documents against the grammar, those of chart folders against their data
/// too.
Status validate(const Arguments& filesOrFolders, bool asJson);
/// Checks chart folders against the hashes in their manifests.
Status verify(const Arguments& folders, bool asJson);
/// Tells what chart folders hold.
Status info(const Arguments& folders, bool asJson);
/// Makes Vega chart, page and, if asked, pictures of each chart anew, and the gallery.
Status render(const Arguments& arguments, const DocumentOptions& documents,
              const PictureOptions& pictures, bool asJson);
/// Makes index.html of output folders anew.
Status gallery(const Arguments& folders, bool asJson);

} // namespace tools
