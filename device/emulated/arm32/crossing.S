// The way of a call from one side to the other; see crossing.h.

#if defined(__arm__)

        .syntax unified
        .arm
        .text

// Reached from the functions that functionFor() makes, with the crossing in r12.
        .globl  bridged_crossing
        .type   bridged_crossing, %function
        .p2align 2
bridged_crossing:
        // The registers' arguments come to lie before those on the stack.
        push    {r0-r3}
        push    {r4-r11, lr}
        mov     r4, sp
        mov     r5, r12
        // kMaxWords, from a whole multiple of eight bytes on, which a phone's stack need not be at.
        sub     sp, sp, #128
        bic     sp, sp, #7
        mov     r0, r5
        add     r1, r4, #36
        mov     r2, sp
        mov     r3, lr
        bl      bridged_depart(PLT)
        mov     r12, r0
        pop     {r0-r3}
        blx     r12
        mov     r6, r0
        mov     r7, r1
        bl      bridged_arrive(PLT)
        mov     r0, r6
        mov     r1, r7
        mov     sp, r4
        pop     {r4-r11, lr}
        add     sp, sp, #16
        bx      lr
        .size   bridged_crossing, . - bridged_crossing

        .section .note.GNU-stack, "", %progbits

#endif
