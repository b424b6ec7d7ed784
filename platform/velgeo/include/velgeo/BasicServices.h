// BasicServices: the process-wide start and stop of the layer.
#pragma once

#include <string>

#include "velgeo/Export.h"

namespace velgeo {

/// Safe from any thread. Registering twice is registering once. Readers and writers need none of this, but callers that
/// follow the order (Register first, Unregister last) stay right if one comes to.
class VELGEO_API BasicServices
{
public:
    static void Register();
    /// Forgets the directory too.
    static void Unregister();
    static bool IsRegistered();

    /// The directory of projection resources, UTF-8, taken as it comes. Empty until set.
    static void SetProjResourceDirectory(std::string const & directory);
    static std::string GetProjResourceDirectory();
};

}  // namespace velgeo
