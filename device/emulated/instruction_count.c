// A plug-in for qemu: counts the instructions that the emulated processor executes in the library for phones, and
// writes the number to the file that its argument "to" names.
//
// qemu-user comes without the header for its plug-ins, so what is used of it is declared here.
#include <inttypes.h>
#include <stddef.h>
#include <stdint.h>
#include <stdio.h>
#include <string.h>

#define EXPORTED __attribute__((visibility("default")))

typedef uint64_t PluginId;
struct Block;
struct Instruction;
enum InlineOperation { kAdd };

extern void qemu_plugin_register_vcpu_tb_trans_cb(PluginId id, void (*translated)(PluginId, struct Block*));
extern void qemu_plugin_register_atexit_cb(PluginId id, void (*ended)(PluginId, void*), void* data);
extern size_t qemu_plugin_tb_n_insns(const struct Block* block);
extern struct Instruction* qemu_plugin_tb_get_insn(const struct Block* block, size_t index);
extern uint64_t qemu_plugin_insn_vaddr(const struct Instruction* instruction);
extern void qemu_plugin_register_vcpu_insn_exec_inline(struct Instruction* instruction,
                                                       enum InlineOperation operation, void* counter,
                                                       uint64_t addend);

EXPORTED int qemu_plugin_version = 1;

// Where image.cpp maps libraries.
static const uint64_t kStart = 0x1000000000;
static const uint64_t kSize = 0x10000000;

static uint64_t executed;
static char file[4096];

static void countBlock(PluginId id, struct Block* block) {
  (void)id;
  for (size_t i = 0; i < qemu_plugin_tb_n_insns(block); ++i) {
    struct Instruction* instruction = qemu_plugin_tb_get_insn(block, i);
    if (qemu_plugin_insn_vaddr(instruction) - kStart < kSize) {
      qemu_plugin_register_vcpu_insn_exec_inline(instruction, kAdd, &executed, 1);
    }
  }
}

static void writeCount(PluginId id, void* data) {
  (void)id;
  (void)data;
  FILE* stream = fopen(file, "w");
  if (stream == NULL) return;
  fprintf(stream, "%" PRIu64 "\n", executed);
  fclose(stream);
}

EXPORTED int qemu_plugin_install(PluginId id, const void* information, int count, char** arguments) {
  (void)information;
  for (int i = 0; i < count; ++i) {
    if (strncmp(arguments[i], "to=", 3) == 0) snprintf(file, sizeof(file), "%s", arguments[i] + 3);
  }
  if (file[0] == '\0') return -1;
  qemu_plugin_register_vcpu_tb_trans_cb(id, countBlock);
  qemu_plugin_register_atexit_cb(id, writeCount, NULL);
  return 0;
}
