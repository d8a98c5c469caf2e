// The version of the product: of the module, the page that shows it, and the package.
// Read by the compilers of code and of resources, and line by line by ./kesto package.
#pragma once

#define KESTO_VERSION "1.2"
#define KESTO_VERSION_NUMBERS 1, 2, 0, 0
