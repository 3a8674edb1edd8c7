// The phone runtime's entries for messages and for calls with variable arguments, as its libraries call them. They look
// the method up with this machine's runtime and jump to it with every argument where it was.

#if defined(__aarch64__)

        .text

// Keeps every register that can carry an argument: eight integers, the place of a large result, eight vectors.
.macro keep_arguments
        stp     x29, x30, [sp, #-224]!
        mov     x29, sp
        stp     x0, x1, [sp, #16]
        stp     x2, x3, [sp, #32]
        stp     x4, x5, [sp, #48]
        stp     x6, x7, [sp, #64]
        str     x8, [sp, #80]
        stp     q0, q1, [sp, #96]
        stp     q2, q3, [sp, #128]
        stp     q4, q5, [sp, #160]
        stp     q6, q7, [sp, #192]
.endm

.macro restore_arguments
        ldp     x2, x3, [sp, #32]
        ldp     x4, x5, [sp, #48]
        ldp     x6, x7, [sp, #64]
        ldr     x8, [sp, #80]
        ldp     q0, q1, [sp, #96]
        ldp     q2, q3, [sp, #128]
        ldp     q4, q5, [sp, #160]
        ldp     q6, q7, [sp, #192]
        ldp     x29, x30, [sp], #224
.endm

// id bridged_objc_msgSend(id receiver, SEL selector, ...)
        .globl  bridged_objc_msgSend
        .type   bridged_objc_msgSend, %function
        .p2align 2
bridged_objc_msgSend:
        cbz     x0, .Lnil
        keep_arguments
        bl      bridged_method
        mov     x17, x0
        ldp     x0, x1, [sp, #16]
        restore_arguments
        // A method with variable arguments finds them on the stack, where they are now; it is told where that is.
        mov     x16, sp
        br      x17
.Lnil:  mov     x1, #0
        movi    d0, #0
        movi    d1, #0
        movi    d2, #0
        movi    d3, #0
        ret
        .size   bridged_objc_msgSend, . - bridged_objc_msgSend

// id bridged_objc_msgSendSuper(struct objc_super*, SEL selector, ...)
        .globl  bridged_objc_msgSendSuper
        .type   bridged_objc_msgSendSuper, %function
        .p2align 2
bridged_objc_msgSendSuper:
        keep_arguments
        bl      bridged_super_method
        mov     x17, x0
        ldp     x0, x1, [sp, #16]
        ldr     x0, [x0]
        restore_arguments
        br      x17
        .size   bridged_objc_msgSendSuper, . - bridged_objc_msgSendSuper

// void bridged_NSLog(NSString* format, ...)
        .globl  bridged_NSLog
        .type   bridged_NSLog, %function
        .p2align 2
bridged_NSLog:
        mov     x1, sp
        b       bridged_log
        .size   bridged_NSLog, . - bridged_NSLog

// id bridged_stringWithFormat(Class, SEL, NSString* format, ...), reached through bridged_objc_msgSend
        .globl  bridged_stringWithFormat
        .type   bridged_stringWithFormat, %function
        .p2align 2
bridged_stringWithFormat:
        mov     x3, x16
        b       bridged_format
        .size   bridged_stringWithFormat, . - bridged_stringWithFormat

        .section .note.GNU-stack, "", %progbits

#endif
