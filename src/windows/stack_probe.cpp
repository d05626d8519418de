// What GCC calls at the begin of a function whose frame is larger than a page, with its size in rax: Windows extends
// the stack page by page, and only where the next one is touched. It would come from the compiler's run-time library,
// of which nothing is linked. All registers are left as they are.
__asm__(R"(
    .text
    .globl ___chkstk_ms
    .def ___chkstk_ms; .scl 2; .type 32; .endef
    .seh_proc ___chkstk_ms
___chkstk_ms:
    pushq %rax
    .seh_pushreg %rax
    pushq %rcx
    .seh_pushreg %rcx
    .seh_endprologue
    leaq 24(%rsp), %rcx         # the end of the frame to be: the caller's stack pointer
0:  cmpq $4096, %rax
    jb 1f
    subq $4096, %rcx
    testb $0, (%rcx)
    subq $4096, %rax
    jmp 0b
1:  subq %rax, %rcx
    testb $0, (%rcx)
    popq %rcx
    popq %rax
    ret
    .seh_endproc
)");
