#pragma once
// The program's built-in files (the default skins) live in a static library's resources;
// this registers them, and must run before the first of them is read. Calling it again is
// harmless.
namespace sonarium {

void initAssets();

}  // namespace sonarium
