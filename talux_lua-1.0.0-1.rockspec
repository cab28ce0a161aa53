-- Builds and installs module and layer from this folder: luarocks --lua-version 5.2 make
rockspec_format = "3.0"
package = "talux_lua"
version = "1.0.0-1"
source = {url = "git+file://."}
description = {
  summary = "Parameters of the relay controller for Lua 5.2",
  detailed = "The module lib_talux_lua and the layer talux over it: scripts read measured values and read and "
    .. "write the parameters of the controller.",
}
supported_platforms = {"linux"}
dependencies = {"lua ~> 5.2"}
build = {
  type = "command",
  build_command = "cmake -S . -B build-rock -DCMAKE_BUILD_TYPE=Release -DCMAKE_UNITY_BUILD=ON "
    .. "&& cmake --build build-rock --parallel 4 --target lib_talux_lua",
  install = {
    lib = {lib_talux_lua = "build-rock/lib_talux_lua.so"},
    lua = {
      talux = "lua/talux.lua",
      ["talux.checks"] = "lua/talux/checks.lua",
      ["talux.clock"] = "lua/talux/clock.lua",
      ["talux.dictionary"] = "lua/talux/dictionary.lua",
      ["talux.files"] = "lua/talux/files.lua",
      ["talux.numbers"] = "lua/talux/numbers.lua",
      ["talux.parameters"] = "build-rock/generated/lua/talux/parameters.lua",
      ["talux.parameters_de"] = "build-rock/generated/lua/talux/parameters_de.lua",
      ["talux.parameters_en"] = "build-rock/generated/lua/talux/parameters_en.lua",
      ["talux.protocol"] = "lua/talux/protocol.lua",
      ["talux.records"] = "build-rock/generated/lua/talux/records.lua",
      ["talux.sources"] = "lua/talux/sources.lua",
      ["talux.stopwatch"] = "lua/talux/stopwatch.lua",
    },
  },
}
